// The flow through lock screen, home screen and apps, by the messages that the shell's classes get.
#include "ShellTest.hpp"
#include "Spy.hpp"

using namespace Simulator;

namespace {

using Messages = std::vector<std::string>;

class Flow : public ShellTest {
protected:
    Flow()
    {
        for (const char* name : {"viewDidLoad", "viewWillAppear:", "viewWillDisappear:"}) {
            spy.listenTo("CSCoverSheetViewController", name);
            spy.listenTo("SBFLockScreenDateViewController", name);
        }
        spy.listenTo("SBHomeScreenViewController", "viewWillAppear:");
        spy.listenTo("SBLockScreenManager", "lockUIFromSource:withOptions:");
        spy.listenTo("SBBacklightController", "turnOnScreenFullyWithBacklightSource:");
        spy.listenTo("SpringBoard", "frontDisplayDidChange:");
        spy.listenTo("SpringBoard", "didReceiveMemoryWarning");
    }

    Spy spy;
};

const Messages disappearing
    = {"CSCoverSheetViewController viewWillDisappear:", "SBFLockScreenDateViewController viewWillDisappear:"};
const Messages appearing
    = {"CSCoverSheetViewController viewWillAppear:", "SBFLockScreenDateViewController viewWillAppear:"};

Messages operator+(Messages first, const Messages& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}

TEST_F(Flow, LoadsAndAppearsOnStart)
{
    spy.listenTo("CSCoverSheetViewController", "dateView");
    spy.listenTo("SBFLockScreenDateViewController", "dateView");
    spy.listenTo("SBFLockScreenDateView", "_updateLabels");
    start();
    EXPECT_EQ(spy.take(),
        (Messages{"CSCoverSheetViewController viewDidLoad", "SBFLockScreenDateViewController viewDidLoad",
            "CSCoverSheetViewController dateView", "SBFLockScreenDateViewController dateView",
            "CSCoverSheetViewController viewWillAppear:", "SBFLockScreenDateViewController viewWillAppear:",
            "SBFLockScreenDateViewController dateView", "SBFLockScreenDateView _updateLabels",
            "CSCoverSheetViewController dateView", "SBFLockScreenDateViewController dateView",
            "SBBacklightController turnOnScreenFullyWithBacklightSource:", "SBFLockScreenDateViewController dateView",
            "SBFLockScreenDateView _updateLabels"}));
    EXPECT_TRUE(shell().isLocked());
    EXPECT_TRUE(shell().isLit());
    EXPECT_TRUE(shell().isCoverSheetPresented());
}

TEST_F(Flow, LocksAndDarkensOnTheSideButton)
{
    start();
    spy.take();
    shell().lock();
    EXPECT_EQ(spy.take(), Messages{"SBLockScreenManager lockUIFromSource:withOptions:"});
    EXPECT_FALSE(shell().isLit());
    EXPECT_TRUE(isShown("stock.darkness"));
}

TEST_F(Flow, LightsUpOnALockScreenThatIsVisible)
{
    start();
    shell().lock();
    spy.take();
    shell().wake();
    EXPECT_EQ(spy.take(), Messages{"SBBacklightController turnOnScreenFullyWithBacklightSource:"});
    EXPECT_TRUE((shell().instance("SBLockScreenManager").send<bool, "isLockScreenVisible">()));
    EXPECT_TRUE((shell().instance("SBLockScreenManager").send<bool, "isUILocked">()));
    EXPECT_FALSE(isShown("stock.darkness"));
}

TEST_F(Flow, GoesToTheHomeScreen)
{
    start();
    spy.take();
    shell().unlock();
    EXPECT_EQ(spy.take(), disappearing + Messages{"SBHomeScreenViewController viewWillAppear:"});
    EXPECT_FALSE(shell().isLocked());
    EXPECT_FALSE(isShown("stock.coverSheet"));
    EXPECT_TRUE(isShown("stock.homeScreen"));
    EXPECT_FALSE((shell().instance("SBLockScreenManager").send<bool, "isLockScreenVisible">()));
    shell().unlock();
    EXPECT_EQ(spy.take(), Messages{});
}

TEST_F(Flow, UnlocksFromTheDarkByLightingUpFirst)
{
    start();
    shell().lock();
    spy.take();
    shell().unlock();
    EXPECT_EQ(spy.take(),
        Messages{"SBBacklightController turnOnScreenFullyWithBacklightSource:"} + disappearing
            + Messages{"SBHomeScreenViewController viewWillAppear:"});
}

TEST_F(Flow, PullsTheCoverSheetDownAgain)
{
    start();
    shell().unlock();
    spy.take();
    shell().coverSheet();
    EXPECT_EQ(spy.take(), appearing);
    EXPECT_FALSE(shell().isLocked());
    EXPECT_TRUE(isShown("stock.coverSheet"));
    EXPECT_FALSE(isShown("stock.homeScreen"));
    shell().coverSheet();
    EXPECT_EQ(spy.take(), Messages{});
    shell().unlock();
    EXPECT_EQ(spy.take(), disappearing + Messages{"SBHomeScreenViewController viewWillAppear:"});
}

TEST_F(Flow, ShowsTheLockScreenWhenItIsLockedFromElsewhere)
{
    start();
    shell().unlock();
    spy.take();
    shell().lock();
    EXPECT_EQ(spy.take(), Messages{"SBLockScreenManager lockUIFromSource:withOptions:"} + appearing);
    EXPECT_TRUE(shell().isLocked());
}

TEST_F(Flow, OpensAnAppInFront)
{
    start();
    spy.take();
    shell().openApp("com.example.app");
    EXPECT_EQ(spy.take(), disappearing + Messages{"SpringBoard frontDisplayDidChange:"});
    EXPECT_TRUE(isShown("stock.app"));
    const auto front = shell().instance("SpringBoard").send<NS::Object, "_accessibilityFrontMostApplication">();
    EXPECT_EQ((front.send<NS::String, "bundleIdentifier">().utf8()), "com.example.app");
    shell().openApp("com.example.app");
    EXPECT_EQ(spy.take(), Messages{});
    shell().unlock();
    EXPECT_EQ(
        spy.take(), (Messages{"SpringBoard frontDisplayDidChange:", "SBHomeScreenViewController viewWillAppear:"}));
    EXPECT_FALSE((shell().instance("SpringBoard").send<NS::Object, "_accessibilityFrontMostApplication">()));
}

TEST_F(Flow, PassesMemoryWarningsOn)
{
    start();
    spy.take();
    shell().memoryWarning();
    EXPECT_EQ(spy.take(), Messages{"SpringBoard didReceiveMemoryWarning"});
}

TEST_F(Flow, TurnsTheScreen)
{
    start({768, 1024});
    shell().rotate(true);
    EXPECT_EQ(view("stock.window").frame(), CGRectMake(0, 0, 1024, 768));
    EXPECT_EQ(view("stock.coverSheet").frame(), CGRectMake(0, 0, 1024, 768));
    const CGRect clock = place("stock.dateView");
    EXPECT_EQ(clock.origin.x + clock.size.width / 2, 512);
    shell().rotate(false);
    EXPECT_EQ(view("stock.window").frame(), CGRectMake(0, 0, 768, 1024));
}

TEST_F(Flow, ReleasesEverythingWithTheShell)
{
    {
        ObjC::AutoreleasePool pool;
        Shell first;
        first.start();
        first.lock();
        first.unlock();
    }
    Loop::shared().reset(0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("CSCoverSheetViewController"), 0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("SBFLockScreenDateView"), 0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIWindow"), 0);
    EXPECT_EQ(StandInRegistry::shared().liveCount("SBUILegibilityLabel"), 0);
}
