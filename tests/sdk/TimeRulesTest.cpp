#include "sdk/cvxcpp/InterfaceUpdateSchedule.h"
#include "sdk/cvxcpp/NotificationHold.h"
#include "sdk/cvxcpp/PollSchedule.h"
#include "sdk/cvxcpp/RestartPolicy.h"
#include "sdk/cvxcpp/StandstillRule.h"
#include "sdk/cvxcpp/StartOrder.h"

#include <gtest/gtest.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr TimePoint start{100s};

/// Returns the restart delays of a host that fails immediately after each start.
std::vector<Milliseconds> delaysOf(RestartPolicy &policy, int failures)
{
    std::vector<Milliseconds> delays;
    for (int i = 0; i < failures; ++i) {
        policy.started(start);
        policy.failed(start);
        delays.push_back(std::chrono::duration_cast<Milliseconds>(policy.nextStart() - start));
    }
    return delays;
}

} // namespace

TEST(RestartPolicy, delayDoublesUpToTheLimit)
{
    RestartPolicy policy(1s, 10s), limited(20s, 10s);
    EXPECT_LE(policy.nextStart(), start) << "the first start is not delayed";
    EXPECT_EQ(delaysOf(policy, 6), (std::vector<Milliseconds>{1s, 2s, 4s, 8s, 10s, 10s}));
    EXPECT_EQ(delaysOf(limited, 2), (std::vector<Milliseconds>{10s, 10s}));
}

TEST(RestartPolicy, delayIsResetAfterALongRun)
{
    const struct
    {
        Milliseconds run, delay;
    } rows[] = {{9999ms, 4s}, {10s, 1s}};
    for (const auto &row : rows) {
        RestartPolicy policy(1s, 10s);
        delaysOf(policy, 2);
        policy.started(start);
        policy.failed(start + row.run);
        EXPECT_EQ(policy.nextStart(), start + row.run + row.delay);
    }
}

TEST(PollSchedule, latePollDoesNotDelayTheNextPoll)
{
    PollSchedule schedule(2s, start);
    EXPECT_EQ(schedule.nextPoll(), start + 2s);
    EXPECT_FALSE(schedule.takeDuePoll(start + 1999ms));
    EXPECT_TRUE(schedule.takeDuePoll(start + 2100ms));
    EXPECT_EQ(schedule.nextPoll(), start + 4s) << "the next poll is at its regular time";
    EXPECT_FALSE(schedule.takeDuePoll(start + 3999ms));
    EXPECT_TRUE(schedule.takeDuePoll(start + 100s));
    EXPECT_EQ(schedule.nextPoll(), start + 100s);
    EXPECT_TRUE(schedule.takeDuePoll(start + 100s));
    EXPECT_EQ(schedule.nextPoll(), start + 102s);
}

TEST(InterfaceUpdateSchedule, firstListOfAHostUpdatesTheInterfaces)
{
    InterfaceUpdateSchedule schedule(10s, 2s);
    EXPECT_TRUE(schedule.takeDueUpdate(start));
    EXPECT_FALSE(schedule.takeDueUpdate(start + 8999ms));
    EXPECT_TRUE(schedule.takeDueUpdate(start + 9s)) << "a poll that is slightly early still updates";
    EXPECT_FALSE(schedule.takeDueUpdate(start + 11s));
    schedule.hostStarted();
    EXPECT_TRUE(schedule.takeDueUpdate(start + 11s));
}

TEST(StandstillRule, lateWakeUpIsLostTime)
{
    StandstillRule rule;
    EXPECT_EQ(rule.wokeUp(start), 0ms) << "the first step has not waited";
    rule.waitsUntil(start);
    EXPECT_EQ(rule.wokeUp(start - 1s), 0ms);
    rule.waitsUntil(start);
    EXPECT_EQ(rule.wokeUp(start + 499ms), 0ms);
    rule.waitsUntil(start);
    EXPECT_EQ(rule.wokeUp(start + 12s), 12s);
    EXPECT_EQ(rule.wokeUp(start + 24s), 0ms) << "the time is lost once";
}

TEST(StartOrder, longestWaitingHostsStartFirst)
{
    const TimePoint first{}, running = TimePoint::max();
    const std::vector<TimePoint> times{
        start, start - 1s, running, first, start + 1ms, start - 2s, first, start - 1s};
    EXPECT_EQ(chooseStarts(times, start), (std::vector<std::size_t>{3, 6, 5, 1}));
    EXPECT_EQ(chooseStarts({start + 1ms, running}, start), std::vector<std::size_t>{});
}

TEST(NotificationHold, changeIsHeldBackForALimitedTime)
{
    NotificationHold hold;
    EXPECT_FALSE(hold.dueTime());
    hold.holdUntil(start + 250ms);
    hold.holdUntil(start);
    hold.changed(start);
    EXPECT_EQ(hold.dueTime(), start + 250ms);
    hold.holdUntil(start + 450ms);
    hold.changed(start + 400ms);
    EXPECT_EQ(hold.dueTime(), start + 450ms);
    hold.holdUntil(start + 700ms);
    EXPECT_EQ(hold.dueTime(), start + 500ms) << "half a second after the oldest change";
    hold.notified();
    EXPECT_FALSE(hold.dueTime());
}
