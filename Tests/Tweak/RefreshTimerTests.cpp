// The timers' guards, in states that the shell's own ways do not lead to.
#include "ExtensionTest.hpp"

#include "Platform/Foundation/NSTimer.hpp"

using namespace Simulator;

namespace {

using RefreshTimers = ExtensionTest;
using Timer = ObjC::Variable<NS::Timer>;

UI::ViewController clockController(Shell& shell)
{
    return UI::ViewController(shell.instance("SBFLockScreenDateViewController").raw());
}

}

// The kick-off is over as soon as it has been fired; only one that someone else holds back is still valid here.
TEST_F(RefreshTimers, AppearingWhileTheKickOffIsStillValidNeitherRestartsItNorPlacesTheLabels)
{
    start();
    Loop::shared().advance(2);
    auto controller = clockController(shell());
    auto& timer = variable<Timer>("_timer");
    timer = NS::Timer::scheduled(3600, controller, ObjC::selector<"requestUpdateTime">(), false);
    const id held = timer.raw();
    const double started = variable<double>("_startTime");
    view("_timeLabel").setFrame(CGRectMake(1, 2, 3, 4));
    for (int time = 0; time < 2; ++time) {
        controller.send<void, "viewWillAppear:">(false);
        EXPECT_EQ(timer.raw(), held);
        EXPECT_EQ(variable<double>("_startTime"), started);
        EXPECT_EQ(view("_timeLabel").frame(), CGRectMake(1, 2, 3, 4));
    }
    timer->invalidate();
    controller.send<void, "viewWillAppear:">(false);
    EXPECT_NE(timer.raw(), held);
    EXPECT_EQ(view("_timeLabel").frame(), CGRectMake(7, 0, 345, 180));
}

TEST_F(RefreshTimers, LightWhereNoLockScreenIsInSightArmsNothing)
{
    start();
    shell().unlock();
    Loop::shared().advance(2);
    variable<bool>("_screenOn") = false;
    auto strip = view("_widgetView");
    strip.setAlpha(0.5);
    const id first = variable<Timer>("_timerLock").raw();
    shell().wake();
    EXPECT_FALSE(variable<bool>("_screenOn"));
    EXPECT_EQ(strip.alpha(), 0.5);
    EXPECT_EQ(variable<Timer>("_timerLock").raw(), first);
    EXPECT_FALSE(variable<Timer>("_timerLight"));
}
