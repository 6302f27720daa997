// These tests check when searches start and end, and when a consumer is told about changes. The times are
// milliseconds.

#include "sdk/gige/SearchSchedule.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

SearchSchedule::Time at(std::chrono::milliseconds time)
{
    return SearchSchedule::Time(1h) + time;
}

} // namespace

TEST(SearchSchedule, searchEndsWhenTheAnswersHaveSettled)
{
    struct Row
    {
        std::vector<std::chrono::milliseconds> changes;
        std::chrono::milliseconds end;
    };
    std::vector<std::chrono::milliseconds> endless;
    for (auto time = 90ms; time < 2s; time += 90ms)
        endless.push_back(time);
    for (const Row &row : {Row{{}, 150ms}, {{20ms}, 150ms}, {{80ms}, 180ms}, {{80ms, 170ms}, 270ms},
             {{80ms, 190ms}, 180ms}, {endless, 1000ms}}) {
        SearchSchedule schedule;
        schedule.start(at(0ms));
        auto ended = 0ms;
        for (auto now = 0ms; ended == 0ms && now < 2s; now += 10ms) {
            if (std::find(row.changes.begin(), row.changes.end(), now) != row.changes.end())
                schedule.noteChange(at(now));
            EXPECT_TRUE(schedule.isSearching());
            if (schedule.endIfSettled(at(now)))
                ended = now;
        }
        EXPECT_EQ(ended, row.end);
        EXPECT_FALSE(schedule.isSearching());
        EXPECT_FALSE(schedule.endIfSettled(at(2s)));
    }
}

TEST(SearchSchedule, resultIsSharedForATenthOfASecond)
{
    SearchSchedule schedule;
    EXPECT_FALSE(schedule.isResultRecent(at(0ms)));
    schedule.start(at(0ms));
    EXPECT_FALSE(schedule.isResultRecent(at(10ms)));
    schedule.endIfSettled(at(150ms));
    EXPECT_TRUE(schedule.isResultRecent(at(249ms)));
    EXPECT_FALSE(schedule.isResultRecent(at(250ms)));
}

TEST(SearchSchedule, nextSearchFollowsAfterTwoSeconds)
{
    SearchSchedule schedule;
    EXPECT_TRUE(schedule.start(at(0ms)));
    schedule.endIfSettled(at(150ms));
    EXPECT_EQ(schedule.nextDeadline(), at(2s));
    schedule.searchSoon(at(1100ms));
    EXPECT_EQ(schedule.nextDeadline(), at(1100ms));
}

TEST(SearchSchedule, searchesOfConsumersDoNotDelayTheCountOfMissingAnswers)
{
    struct Row
    {
        std::vector<std::chrono::milliseconds> consumer; // Searches of a consumer.
        std::vector<std::chrono::milliseconds> counting; // The searches that count.
        int searches; // Number of searches in the first ten seconds.
    };
    std::vector<std::chrono::milliseconds> frequent;
    for (auto time = 300ms; time < 10s; time += 300ms)
        frequent.push_back(time);
    for (const Row &row : {Row{{}, {0ms, 2s, 4s, 6s, 8s}, 5}, {{900ms, 1899ms}, {0ms, 2s, 4s, 6s, 8s}, 7},
             {{1900ms, 3900ms, 5900ms, 7900ms, 9900ms}, {0ms, 1900ms, 3900ms, 5900ms, 7900ms, 9900ms}, 6},
             {frequent, {0ms, 2s, 3900ms, 5900ms, 7800ms, 9800ms}, 37}}) {
        SearchSchedule schedule;
        std::vector<std::chrono::milliseconds> counting;
        int searches = 0;
        for (auto now = 0ms; now < 10s; ++now) {
            const bool isRequested
                = std::find(row.consumer.begin(), row.consumer.end(), now) != row.consumer.end();
            if (now > 0ms && !isRequested && at(now) < schedule.nextSearch())
                continue;
            ++searches;
            if (schedule.start(at(now)))
                counting.push_back(now);
        }
        EXPECT_EQ(counting, row.counting);
        EXPECT_EQ(searches, row.searches);
    }
}

TEST(SearchSchedule, changesAreReportedOnceForEachSearchWhenAllCamerasHaveAnswered)
{
    SearchSchedule schedule;
    schedule.start(at(0ms));
    EXPECT_FALSE(schedule.takeReport(at(1000ms))) << "there is no change";
    schedule.noteChange(at(300ms));
    schedule.noteChange(at(900ms));
    schedule.endIfSettled(at(1000ms));
    EXPECT_EQ(schedule.nextDeadline(), at(1000ms));
    EXPECT_FALSE(schedule.takeReport(at(999ms)));
    EXPECT_TRUE(schedule.takeReport(at(1000ms)));
    EXPECT_FALSE(schedule.takeReport(at(1000ms)));

    schedule.noteChange(at(1100ms));
    EXPECT_FALSE(schedule.takeReport(at(2999ms))) << "the search has been reported";
    EXPECT_TRUE(schedule.takeReport(at(3000ms)));

    schedule.start(at(4000ms));
    schedule.noteChange(at(5500ms));
    EXPECT_TRUE(schedule.takeReport(at(5500ms))) << "the search has not been reported";
}
