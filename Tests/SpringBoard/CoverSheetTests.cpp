// The stock elements of the lock screen: quick actions, hint, charging view, padlock, Axon's row.
#include "ShellTest.hpp"

using namespace Simulator;

namespace {

class CoverSheet : public ShellTest {
protected:
    static bool hasNone(ObjC::Object, SEL) { return false; }
};

}

TEST_F(CoverSheet, HasQuickActionsOnPhonesWithoutHomeButton)
{
    start();
    EXPECT_TRUE(isShown("stock.flashlight"));
    EXPECT_TRUE(isShown("stock.camera"));
    EXPECT_EQ(place("stock.flashlight"), CGRectMake(46, 712, 50, 50));
    EXPECT_EQ(place("stock.camera"), CGRectMake(279, 712, 50, 50));
}

TEST_F(CoverSheet, HasNoQuickActionsOnPhonesWithHomeButton)
{
    start({320, 568});
    EXPECT_FALSE(isShown("stock.flashlight"));
    EXPECT_FALSE(isShown("stock.camera"));
    EXPECT_FALSE(isShown("stock.homeIndicator"));
}

TEST_F(CoverSheet, AsksForItsQuickActionsWheneverItAppears)
{
    start();
    const IMP stock = replaceMethod<&CoverSheet::hasNone>("CSQuickActionsViewController", "hasCamera");
    shell().unlock();
    shell().coverSheet();
    EXPECT_FALSE(isShown("stock.camera"));
    EXPECT_TRUE(isShown("stock.flashlight"));
    setMethod(objc_getClass("CSQuickActionsViewController"), sel_registerName("hasCamera"), stock, "B@:");
}

TEST_F(CoverSheet, SaysHowToOpenThePhone)
{
    start();
    EXPECT_EQ(text("stock.hint"), "Swipe up to open");
    EXPECT_TRUE(isShown("stock.hint"));
    start({320, 568});
    EXPECT_EQ(text("stock.hint"), "Press home to open");
}

TEST_F(CoverSheet, ShowsTheChargingViewForAMoment)
{
    DeviceState::shared().battery.level = 0.87;
    start();
    shell().charge(true);
    EXPECT_EQ(text("stock.charging.label"), "87% Charged");
    EXPECT_TRUE(isShown("stock.charging.battery"));
    EXPECT_FALSE(isShown("stock.notificationList"));
    Loop::shared().advance(3.5);
    EXPECT_FALSE(find("stock.charging"));
    EXPECT_TRUE(isShown("stock.notificationList"));
}

TEST_F(CoverSheet, TakesTheChargingViewAwayWhenUnplugged)
{
    start();
    shell().charge(true);
    shell().charge(false);
    EXPECT_FALSE(find("stock.charging"));
    EXPECT_EQ(DeviceState::shared().battery.state, BatteryState::unplugged);
}

TEST_F(CoverSheet, LightsUpWhenPluggedIn)
{
    start();
    shell().lock();
    shell().charge(true);
    EXPECT_TRUE(shell().isLit());
}

TEST_F(CoverSheet, GivesThePlaceOfTheIdleTimer)
{
    start();
    const ObjC::Object manager = shell().instance("SBCoverSheetPresentationManager");
    const auto controller = manager.send<NS::Object, "coverSheetViewController">();
    const auto idleTimer = controller.send<NS::Object, "idleTimerController">();
    const auto provider = idleTimer.ivar<NS::Object>("_dashBoardIdleTimerProvider");
    ASSERT_TRUE(provider);
    provider.send<void, "addDisabledIdleTimerAssertionReason:">("reading"_ns);
    provider.send<void, "addDisabledIdleTimerAssertionReason:">("reading"_ns);
    EXPECT_TRUE((provider.send<bool, "isDisabledAssertionActiveForReason:">("reading"_ns)));
    provider.send<void, "removeDisabledIdleTimerAssertionReason:">("reading"_ns);
    EXPECT_FALSE((provider.send<bool, "isDisabledAssertionActiveForReason:">("reading"_ns)));
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0]["kind"], "idleTimer");
    EXPECT_EQ(records[0]["action"], "add");
    EXPECT_EQ(records[2]["action"], "remove");
    EXPECT_EQ(records[2]["reason"], "reading");
}

TEST_F(CoverSheet, HasAxonsRowWhereThatIsInstalled)
{
    start();
    ASSERT_TRUE(find("stock.axon"));
    EXPECT_EQ((view("stock.axon").send<NS::Array, "list">().count()), 0u);
}

TEST_F(CoverSheet, ShowsThePadlockOnlyWhileCovered)
{
    start();
    EXPECT_TRUE(isShown("stock.padlock"));
    shell().unlock();
    EXPECT_FALSE(isShown("stock.padlock"));
}

TEST_F(CoverSheet, ChangesItsAppearance)
{
    start();
    shell().setStyle(InterfaceStyle::dark);
    EXPECT_EQ(UI::Screen::mainScreen().traitCollection().userInterfaceStyle(), UI::UserInterfaceStyle::dark);
    EXPECT_EQ(DeviceState::shared().style, InterfaceStyle::dark);
}
