// The loop's virtual and real clock.
#include "Simulator/Loop/Loop.hpp"

#include <gtest/gtest.h>

#include <limits>

using namespace Simulator;

TEST(Clock, StandsStillUntilAdvanced)
{
    Loop loop;
    loop.reset(627169260);
    EXPECT_EQ(loop.now(), 627169260);
    EXPECT_EQ(loop.now(), 627169260);
    for (int minute = 0; minute < 60; ++minute)
        loop.advance(60);
    EXPECT_EQ(loop.now(), 627169260 + 3600);
    EXPECT_EQ(loop.start(), 627169260);
}

TEST(Clock, AChangeOfTheWallClockKeepsRelativeDelays)
{
    Loop loop;
    loop.reset(1000);
    double ranAt = 0;
    loop.schedule(10, [&] { ranAt = loop.now(); });
    loop.advance(4);
    loop.setNow(500000);
    EXPECT_EQ(loop.now(), 500000);
    EXPECT_EQ(loop.uptime(), 4);
    loop.advance(6);
    EXPECT_EQ(ranAt, 500006);
}

TEST(Clock, IgnoresATimeThatIsNoNumber)
{
    Loop loop;
    loop.reset(1000);
    loop.setNow(std::numeric_limits<double>::quiet_NaN());
    loop.setNow(std::numeric_limits<double>::infinity());
    EXPECT_EQ(loop.now(), 1000);
    loop.reset(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(loop.now(), 0);
}

TEST(Clock, NeverRunsBackwards)
{
    Loop loop;
    loop.reset(1000);
    loop.advance(-5);
    loop.advance(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(loop.now(), 1000);
}

TEST(Clock, AdvancesByAYearAtMostAtOnce)
{
    Loop loop;
    loop.reset(0);
    loop.advance(std::numeric_limits<double>::infinity());
    EXPECT_EQ(loop.uptime(), 366.0 * 86400);
}

TEST(Clock, ARealClockMovesByItselfAndRunsWhatIsDue)
{
    Loop loop;
    loop.reset(1000, ClockKind::realTime);
    int runs = 0;
    loop.schedule(0, [&] { ++runs; });
    loop.schedule(3600, [&] { runs += 100; });
    const double before = loop.uptime();
    while (loop.uptime() == before) { }
    EXPECT_EQ(loop.runDue(), 1u);
    EXPECT_EQ(runs, 1);
    EXPECT_LE(*loop.nextDue(), 3600);
    loop.advance(3600);
    EXPECT_EQ(runs, 101);
}

TEST(Clock, KeepsItsTimeWhenItsKindChanges)
{
    Loop loop;
    loop.reset(1000);
    loop.advance(50);
    loop.setClockKind(ClockKind::realTime);
    EXPECT_GE(loop.now(), 1050);
    loop.setClockKind(ClockKind::virtualTime);
    const double stopped = loop.now();
    EXPECT_EQ(loop.now(), stopped);
    EXPECT_GE(stopped, 1050);
}

TEST(Clock, LateRepeatingWorkRunsOnceAndSkipsWhatItMissed)
{
    Loop loop;
    loop.reset(0, ClockKind::realTime);
    int runs = 0;
    const TimerId id = loop.scheduleRepeating(0.0001, [&] { ++runs; });
    const double before = loop.uptime();
    while (loop.uptime() < before + 0.001) { }
    EXPECT_EQ(loop.runDue(), 1u);
    EXPECT_EQ(runs, 1);
    EXPECT_LE(*loop.dueIn(id), 0.0001);
}

TEST(Clock, IsSharedByThePhone)
{
    EXPECT_EQ(&Loop::shared(), &Loop::shared());
}
