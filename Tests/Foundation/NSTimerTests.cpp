// NSTimer on the phone's loop.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSTimer.hpp"
#include "Simulator/Runtime/Binder.hpp"

using namespace Simulator;

namespace {

struct TimerTarget : StandIn {
    using Root = TimerTarget;
    void tick(const NS::Timer& timer)
    {
        ++ticks;
        times.push_back(Loop::shared().uptime());
        if (ticks == invalidateAt)
            timer.invalidate();
    }
    int ticks = 0;
    int invalidateAt = 0;
    std::vector<double> times;
};

class NSTimer : public FoundationTest {
protected:
    void SetUp() override
    {
        FoundationTest::SetUp();
        if (!objc_getClass("TimerTarget"))
            Binder<TimerTarget>("TimerTarget", "NSObject").def<"tick:", &TimerTarget::tick>().add();
        target = ObjC::Object::adopting(classNamed("TimerTarget").send<id, "new">());
    }
    NS::Timer scheduled(double interval, bool repeats)
    {
        return NS::Timer::scheduled(interval, target, sel_registerName("tick:"), repeats);
    }
    TimerTarget& counts() { return standIn<TimerTarget>(target.raw()); }

    ObjC::Object target;
};

}

TEST_F(NSTimer, FiresOnceAndIsThenInvalid)
{
    const NS::Timer timer = scheduled(2, false);
    EXPECT_TRUE(timer.isValid());
    Loop::shared().advance(1.9);
    EXPECT_EQ(counts().ticks, 0);
    Loop::shared().advance(10);
    EXPECT_EQ(counts().ticks, 1);
    EXPECT_FALSE(timer.isValid());
    EXPECT_EQ(Loop::shared().pending(WorkKind::timer), 0u);
}

TEST_F(NSTimer, RepeatsUntilInvalidated)
{
    const NS::Timer timer = scheduled(0.5, true);
    Loop::shared().advance(2);
    EXPECT_EQ(counts().times, (std::vector{0.5, 1.0, 1.5, 2.0}));
    timer.invalidate();
    EXPECT_FALSE(timer.isValid());
    Loop::shared().advance(2);
    EXPECT_EQ(counts().ticks, 4);
    timer.invalidate();
}

TEST_F(NSTimer, MayBeInvalidatedWhileItFires)
{
    counts().invalidateAt = 2;
    scheduled(1, true);
    Loop::shared().advance(10);
    EXPECT_EQ(counts().ticks, 2);
    EXPECT_EQ(Loop::shared().pending(), 0u);
}

TEST_F(NSTimer, FiredByHandKeepsItsScheduleIfItRepeats)
{
    const NS::Timer repeating = scheduled(1, true);
    repeating.fire();
    EXPECT_EQ(counts().ticks, 1);
    EXPECT_TRUE(repeating.isValid());
    Loop::shared().advance(1);
    EXPECT_EQ(counts().ticks, 2);
    repeating.invalidate();
    repeating.fire();
    EXPECT_EQ(counts().ticks, 2);

    const NS::Timer once = scheduled(1, false);
    once.fire();
    EXPECT_EQ(counts().ticks, 3);
    EXPECT_FALSE(once.isValid());
    Loop::shared().advance(5);
    EXPECT_EQ(counts().ticks, 3);
}

TEST_F(NSTimer, KeepsItsTargetUntilItIsInvalidated)
{
    NS::Timer timer;
    {
        ObjC::AutoreleasePool inner;
        timer = scheduled(1, true);
    }
    EXPECT_EQ(StandInRegistry::shared().liveCount("TimerTarget"), 1);
    target = nullptr;
    EXPECT_EQ(StandInRegistry::shared().liveCount("TimerTarget"), 1);
    timer.invalidate();
    EXPECT_EQ(StandInRegistry::shared().liveCount("TimerTarget"), 0);
    timer = nullptr;
    EXPECT_EQ(StandInRegistry::shared().liveCount("PhoneTimer"), 0);
}

TEST_F(NSTimer, GoesWithItsTargetAfterFiringOnce)
{
    {
        ObjC::AutoreleasePool inner;
        scheduled(1, false);
        target = nullptr;
    }
    EXPECT_EQ(StandInRegistry::shared().liveCount("PhoneTimer"), 1);
    Loop::shared().advance(1);
    EXPECT_EQ(StandInRegistry::shared().liveCount("PhoneTimer"), 0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("TimerTarget"), 0);
}

TEST_F(NSTimer, TakesATenthOfAMillisecondForNoInterval)
{
    const NS::Timer timer = scheduled(0, true);
    Loop::shared().advance(0.001);
    EXPECT_EQ(counts().ticks, 10);
    EXPECT_EQ((timer.send<double, "timeInterval">()), 0.0001);
    timer.invalidate();
    scheduled(-3, false);
    Loop::shared().advance(0.0001);
    EXPECT_EQ(counts().ticks, 11);
}

TEST_F(NSTimer, RunsOnlyOnceItIsAddedToTheRunLoop)
{
    const auto timer = NS::Timer::sendClass<NS::Timer, "timerWithTimeInterval:target:selector:userInfo:repeats:">(
        1.0, target, sel_registerName("tick:"), "info"_ns, true);
    EXPECT_TRUE((timer.send<NS::String, "userInfo">().isEqualToString("info"_ns)));
    Loop::shared().advance(5);
    EXPECT_EQ(counts().ticks, 0);
    const auto loop = classNamed("NSRunLoop").send<ObjC::Object, "mainRunLoop">();
    for (int times = 0; times < 2; ++times)
        loop.send<void, "addTimer:forMode:">(timer, "kCFRunLoopCommonModes"_ns);
    EXPECT_EQ(Loop::shared().pending(WorkKind::timer), 1u);
    Loop::shared().advance(1);
    EXPECT_GE(counts().ticks, 1);
}

TEST_F(NSTimer, CanBePutOff)
{
    const NS::Timer timer = scheduled(1, false);
    timer.send<void, "setFireDate:">(date(evening + 30));
    EXPECT_EQ((timer.send<NS::Date, "fireDate">().timeIntervalSinceReferenceDate()), evening + 30);
    Loop::shared().advance(29);
    EXPECT_EQ(counts().ticks, 0);
    Loop::shared().advance(1);
    EXPECT_EQ(counts().ticks, 1);
}

TEST_F(NSTimer, AChangeOfTheClockKeepsItsDelay)
{
    scheduled(10, false);
    Loop::shared().setNow(0);
    Loop::shared().advance(9.9);
    EXPECT_EQ(counts().ticks, 0);
    Loop::shared().advance(0.1);
    EXPECT_EQ(counts().ticks, 1);
}
