// These tests check when searches start and end, and when a consumer is told about news. The times are
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
        std::vector<std::chrono::milliseconds> news;
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
            if (std::find(row.news.begin(), row.news.end(), now) != row.news.end())
                schedule.noteNews(at(now));
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
    EXPECT_FALSE(schedule.start(at(900ms))) << "a consumer's search replaces the next one";
    schedule.endIfSettled(at(1050ms));
    EXPECT_EQ(schedule.nextDeadline(), at(2900ms));
    schedule.hasten(at(1100ms));
    EXPECT_EQ(schedule.nextDeadline(), at(1100ms));
}

TEST(SearchSchedule, frequentSearchesDoNotDelayTheCountOfMissingAnswers)
{
    SearchSchedule schedule;
    EXPECT_TRUE(schedule.start(at(0ms)));
    EXPECT_FALSE(schedule.start(at(1500ms)));
    EXPECT_EQ(schedule.nextSearch(), at(3000ms)) << "three seconds after the last count";
    EXPECT_FALSE(schedule.start(at(1899ms)));
    EXPECT_TRUE(schedule.start(at(1900ms)));
    EXPECT_EQ(schedule.nextSearch(), at(3900ms));
}

TEST(SearchSchedule, newsIsReportedOnceForEachSearchWhenAllCamerasHaveAnswered)
{
    SearchSchedule schedule;
    schedule.start(at(0ms));
    EXPECT_FALSE(schedule.takeReport(at(1000ms))) << "there is no news";
    schedule.noteNews(at(300ms));
    schedule.noteNews(at(900ms));
    schedule.endIfSettled(at(1000ms));
    EXPECT_EQ(schedule.nextDeadline(), at(1000ms));
    EXPECT_FALSE(schedule.takeReport(at(999ms)));
    EXPECT_TRUE(schedule.takeReport(at(1000ms)));
    EXPECT_FALSE(schedule.takeReport(at(1000ms)));

    schedule.noteNews(at(1100ms));
    EXPECT_FALSE(schedule.takeReport(at(2999ms))) << "the search has been reported";
    EXPECT_TRUE(schedule.takeReport(at(3000ms)));

    schedule.start(at(4000ms));
    schedule.noteNews(at(5500ms));
    EXPECT_TRUE(schedule.takeReport(at(5500ms))) << "the search has not been reported";
}
