// What the loop runs, when and in which order.
#include "Simulator/Loop/Loop.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using namespace Simulator;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct LoopTest : testing::Test {
    Loop loop;
    std::string order;

    void SetUp() override { loop.reset(1000); }
    Loop::Callback note(char letter)
    {
        return [this, letter] { order += letter; };
    }
};

}

TEST_F(LoopTest, RunsWorkInOrderOfItsTimeAndThenOfScheduling)
{
    loop.schedule(2, note('c'));
    loop.schedule(1, note('a'));
    loop.schedule(2, note('d'));
    loop.schedule(1, note('b'));
    loop.advance(2);
    EXPECT_EQ(order, "abcd");
}

TEST_F(LoopTest, RunsEachCallbackAtItsOwnTime)
{
    std::vector<double> times;
    for (double delay : {0.5, 0.1, 3.0})
        loop.schedule(delay, [&] { times.push_back(loop.uptime()); });
    loop.advance(10);
    EXPECT_EQ(times, (std::vector{0.1, 0.5, 3.0}));
    EXPECT_EQ(loop.now(), 1010);
}

TEST_F(LoopTest, RunsNothingBeforeItIsDue)
{
    loop.schedule(1, note('a'));
    loop.advance(0.999);
    EXPECT_EQ(order, "");
    loop.advance(0.001);
    EXPECT_EQ(order, "a");
}

TEST_F(LoopTest, RepeatingWorkKeepsToItsGridInManySmallSteps)
{
    loop.scheduleRepeating(1, note('r'));
    for (int step = 0; step < 100; ++step)
        loop.advance(0.1);
    EXPECT_EQ(order.size(), 10u);
}

TEST_F(LoopTest, RepeatingWorkMayBeginAtAnotherTimeThanItsInterval)
{
    loop.scheduleRepeating(0.25, 60, note('r'));
    loop.advance(0.25);
    EXPECT_EQ(order, "r");
    loop.advance(59.9);
    EXPECT_EQ(order, "r");
    loop.advance(0.1);
    EXPECT_EQ(order, "rr");
}

TEST_F(LoopTest, WorkScheduledByWorkRunsInTheSameAdvance)
{
    loop.schedule(1, [this] {
        order += 'a';
        loop.schedule(1, note('b'));
        loop.schedule(0, note('0'));
    });
    loop.advance(2);
    EXPECT_EQ(order, "a0b");
}

TEST_F(LoopTest, CancelledWorkDoesNotRun)
{
    const TimerId id = loop.schedule(1, note('a'));
    EXPECT_TRUE(loop.isScheduled(id));
    EXPECT_TRUE(loop.cancel(id));
    EXPECT_FALSE(loop.isScheduled(id));
    EXPECT_FALSE(loop.cancel(id));
    loop.advance(2);
    EXPECT_EQ(order, "");
}

TEST_F(LoopTest, WorkMayCancelOtherWorkOfTheSameMoment)
{
    TimerId second = 0;
    loop.schedule(1, [&] { loop.cancel(second); });
    second = loop.schedule(1, note('b'));
    loop.advance(1);
    EXPECT_EQ(order, "");
    EXPECT_EQ(loop.pending(), 0u);
}

TEST_F(LoopTest, RepeatingWorkMayCancelItself)
{
    TimerId self = 0;
    self = loop.scheduleRepeating(1, [&] {
        order += 'r';
        if (order.size() == 3)
            loop.cancel(self);
        order += '.';
    });
    loop.advance(100);
    EXPECT_EQ(order, "r.r.");
}

TEST_F(LoopTest, ReleasesWhatACallbackHoldsWhenCancelledOrRun)
{
    auto held = std::make_shared<int>();
    const TimerId first = loop.schedule(1, [held] {});
    loop.schedule(2, [held] {});
    EXPECT_EQ(held.use_count(), 3);
    loop.cancel(first);
    EXPECT_EQ(held.use_count(), 2);
    loop.advance(2);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(LoopTest, AbsurdDelaysMeanNowOrNever)
{
    loop.schedule(notANumber, note('n'));
    loop.schedule(-5, note('-'));
    loop.schedule(-infinity, note('i'));
    loop.schedule(infinity, note('!'));
    loop.advance(0);
    EXPECT_EQ(order, "n-i");
    loop.advance(86400);
    EXPECT_EQ(order, "n-i");
    EXPECT_EQ(loop.pending(), 1u);
}

TEST_F(LoopTest, NonPositiveIntervalsMeanATenthOfAMillisecond)
{
    for (double interval : {0.0, -1.0, notANumber, 1e-30}) {
        order.clear();
        const TimerId id = loop.scheduleRepeating(interval, note('r'));
        loop.advance(0.001);
        EXPECT_EQ(order.size(), 10u) << interval;
        loop.cancel(id);
    }
}

TEST_F(LoopTest, WorkThatQueuesItselfForNowDoesNotStopTheClock)
{
    long runs = 0;
    std::function<void()> again = [&] {
        ++runs;
        loop.schedule(0, again);
    };
    loop.schedule(0, again);
    loop.advance(0.1);
    EXPECT_EQ(loop.uptime(), 0.1);
    EXPECT_GE(runs, 1000);
    EXPECT_LE(runs, 2100);
}

TEST_F(LoopTest, SettleRunsUntilOnlyRepeatingWorkIsLeft)
{
    loop.scheduleRepeating(1, note('r'));
    loop.schedule(0.5, note('a'));
    loop.schedule(2.5, note('b'));
    EXPECT_EQ(loop.settle(60), 2.5);
    EXPECT_EQ(order, "arrb");
    EXPECT_EQ(loop.pending(), 1u);
}

TEST_F(LoopTest, SettleStopsAtItsBound)
{
    loop.schedule(100, note('a'));
    EXPECT_EQ(loop.settle(5), 5);
    EXPECT_EQ(order, "");
    EXPECT_EQ(loop.uptime(), 5);
}

TEST_F(LoopTest, SettleTakesNoTimeWhenNothingIsPending)
{
    EXPECT_EQ(loop.settle(5), 0);
    loop.scheduleRepeating(1, note('r'));
    EXPECT_EQ(loop.settle(5), 0);
    EXPECT_EQ(order, "");
}

TEST_F(LoopTest, TellsWhenTheNextCallbackIsDue)
{
    EXPECT_FALSE(loop.nextDue());
    const TimerId id = loop.schedule(3, note('a'));
    loop.schedule(5, note('b'));
    loop.advance(1);
    EXPECT_EQ(loop.nextDue(), 2);
    EXPECT_EQ(loop.dueIn(id), 2);
    loop.cancel(id);
    EXPECT_EQ(loop.nextDue(), 4);
    EXPECT_FALSE(loop.dueIn(id));
}

TEST_F(LoopTest, CountsPendingWorkByKind)
{
    loop.schedule(0, note('m'), WorkKind::mainQueue);
    loop.schedule(1, note('d'));
    loop.scheduleRepeating(1, note('t'));
    loop.schedule(1, note('a'), WorkKind::animation);
    loop.scheduleRepeating(1, note('a'), WorkKind::animation);
    EXPECT_EQ(loop.pending(), 5u);
    EXPECT_EQ(loop.pending(WorkKind::mainQueue), 1u);
    EXPECT_EQ(loop.pending(WorkKind::delayed), 1u);
    EXPECT_EQ(loop.pending(WorkKind::timer), 1u);
    EXPECT_EQ(loop.pending(WorkKind::animation), 2u);
    EXPECT_EQ(loop.pendingRepeating(), 2u);
}

TEST_F(LoopTest, AdvancingFromWithinACallbackRunsWhatFallsDue)
{
    loop.schedule(1, [this] {
        loop.advance(5);
        order += 'a';
    });
    loop.schedule(2, note('b'));
    loop.advance(3);
    EXPECT_EQ(order, "ba");
    EXPECT_EQ(loop.uptime(), 6);
}

TEST_F(LoopTest, ResettingFromWithinACallbackForgetsAllWork)
{
    loop.scheduleRepeating(1, note('r'));
    loop.schedule(2, note('b'));
    loop.schedule(1, [this] { loop.reset(0); });
    loop.advance(5);
    EXPECT_EQ(order, "r");
    EXPECT_EQ(loop.pending(), 0u);
}
