// When the lock screen is refreshed: appearance, light, lock, leaving, and the minute's refresh under LastLook.
#include "Tests/EndToEnd/Scenario.hpp"

namespace {

constexpr double hour = 3600;

bool isValid(Phone& phone, const char* timer)
{
    auto found = phone.global(timer);
    return !found.is_null() && found.at("valid").get<bool>();
}

/// Replaces the texts, so that the next refresh shows.
void blot(Phone& phone)
{
    for (const char* id : {"_timeLabel", "_dateLabel"})
        phone.send({{"id", id}}, "setText:", {{{"text", "?"}}});
}

bool timeIsFresh(Phone& phone)
{
    return phone.label("_timeLabel").text != "?";
}
bool dateIsFresh(Phone& phone)
{
    return phone.label("_dateLabel").text != "?";
}

double stripAlpha(Phone& phone)
{
    return phone.view("_widgetView").alpha;
}

Support::PhoneStart lastLookPhone(bool keepWidgets = true)
{
    return eveningPhone({{"showWidgetLastLook", keepWidgets}}).installed({"LastLook"});
}

}

TEST(Lifecycle, TheTimeIsThereAHundredthOfASecondAfterTheLockScreenAppears)
{
    auto phone = eveningPhone().start();
    phone.advance(0.011);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
}

TEST(Lifecycle, TheFullRefreshFollowsHalfASecondLaterWhereWidgetsAreShown)
{
    auto phone = eveningPhone({{"customFont", "2"}}).start();
    phone.advance(0.55);
    EXPECT_NE(phone.label("_timeLabel").fontName, "Roboto-Black");
    phone.advance(0.1);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Roboto-Black");
}

TEST(Lifecycle, WithoutWidgetsItsAppearanceAloneBringsNoFullRefresh)
{
    auto phone = settledWith({{"showWidget", false}});
    phone.call("phone.unlock");
    phone.settle();
    phone.call("phone.coverSheet");
    blot(phone);
    phone.settle(5);
    EXPECT_FALSE(dateIsFresh(phone));
    EXPECT_TRUE(timeIsFresh(phone));
}

TEST(Lifecycle, WithoutWidgetsTheLightOfTheStartStylesTheClock)
{
    auto phone = eveningPhone({{"customFont", "2"}, {"showWidget", false}}).start();
    phone.advance(1.1);
    EXPECT_NE(phone.label("_timeLabel").fontName, "Roboto-Black");
    phone.advance(0.1);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Roboto-Black");
    EXPECT_EQ(phone.label("_timeLabel").fontSize, 90);
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF");
}

// A kick-off that has been fired is over, so it holds back no later appearance.
TEST(Lifecycle, EachAppearanceKicksTheClockOffAndPlacesItsLabels)
{
    auto phone = settledWith();
    double started = phone.global("_startTime");
    phone.send({{"id", "_timeLabel"}}, "setFrame:", Json::array({{1, 2, 3, 4}}));
    phone.advance(30);
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "viewWillAppear:", {false});
    EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{7, 0, 345, 180}));
    EXPECT_GE(phone.global("_startTime").get<double>(), started + 30);
    EXPECT_FALSE(isValid(phone, "_timer"));
}

TEST(Lifecycle, OnAScreenOfFiveHundredPointsAppearingChangesNoFrame)
{
    for (double width : {500, 501}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        phone.send({{"id", "_timeLabel"}}, "setFrame:", Json::array({{1, 2, 3, 4}}));
        phone.send({{"instance", "SBFLockScreenDateViewController"}}, "viewWillAppear:", {false});
        EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{1, 2, 3, 4}));
    }
}

TEST(Lifecycle, TheCoverSheetsOwnRequestIsDueAfterASecond)
{
    auto phone = settledWith();
    blot(phone);
    phone.send({{"instance", "CSCoverSheetViewController"}}, "requestUpdateWidget");
    phone.advance(1.09);
    EXPECT_FALSE(dateIsFresh(phone));
    phone.advance(0.02);
    EXPECT_TRUE(dateIsFresh(phone));
}

TEST(Lifecycle, EachLightRefreshesASecondLater)
{
    auto phone = settledWith();
    for (int time = 0; time < 3; ++time) {
        phone.call("phone.lock");
        phone.advance(5);
        phone.call("phone.wake");
        blot(phone);
        phone.advance(1.05);
        EXPECT_FALSE(dateIsFresh(phone)) << time;
        phone.advance(0.1);
        EXPECT_TRUE(dateIsFresh(phone)) << time;
        EXPECT_EQ(phone.global("_screenOn"), true);
    }
}

TEST(Lifecycle, LightOnALitScreenArmsNothing)
{
    auto phone = settledWith();
    phone.call("phone.wake");
    blot(phone);
    phone.settle(5);
    EXPECT_FALSE(dateIsFresh(phone));
}

TEST(Lifecycle, LockingBeforeTheSecondIsOverStopsItsRefresh)
{
    auto phone = settledWith();
    phone.call("phone.lock");
    phone.settle();
    phone.call("phone.wake");
    phone.advance(0.5);
    phone.call("phone.lock");
    phone.settle(0.4);
    blot(phone);
    phone.settle(5);
    EXPECT_FALSE(dateIsFresh(phone));
}

TEST(Lifecycle, LightingItAgainAfterALockMakesNoNewTimer)
{
    auto phone = settledWith();
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.settle();
    auto first = phone.global("_timerLock").at("description");
    phone.call("phone.lock");
    EXPECT_EQ(phone.global("_screenOn"), false);
    phone.call("phone.wake");
    EXPECT_EQ(phone.global("_screenOn"), true);
    EXPECT_EQ(phone.global("_timerLock").at("description"), first);
}

TEST(Lifecycle, LockingStopsTheClockAndForgetsTheLight)
{
    auto phone = settledWith();
    phone.call("phone.wake");
    phone.call("phone.lock");
    EXPECT_EQ(phone.global("_screenOn"), false);
    for (const char* timer : {"_timer", "_timerLock", "_timerLight", "_timerWidget", "_timerLastLook"})
        EXPECT_FALSE(isValid(phone, timer)) << timer;
    EXPECT_TRUE(phone.view("_timeBorderView").hidden);
    EXPECT_TRUE(phone.view("_dateBorderView").hidden);
}

TEST(Lifecycle, UnderLastLookALockedPhoneIsRefreshedEachMinute)
{
    auto phone = settled(lastLookPhone());
    phone.call("phone.lock");
    phone.settle(1);
    for (int i = 0; i < 3; ++i) {
        blot(phone);
        phone.advance(58);
        EXPECT_FALSE(dateIsFresh(phone));
        phone.advance(2);
        EXPECT_TRUE(dateIsFresh(phone)) << "minute " << i;
    }
}

TEST(Lifecycle, UnderLastLookItEndsByItselfAfterFiveHours)
{
    auto phone = settled(lastLookPhone());
    phone.call("phone.lock");
    phone.advance(5 * hour - 30);
    blot(phone);
    phone.advance(150);
    EXPECT_TRUE(dateIsFresh(phone)) << "the tick after the limit still refreshes";
    blot(phone);
    phone.advance(hour);
    EXPECT_FALSE(dateIsFresh(phone));
}

TEST(Lifecycle, LastLookAloneRefreshesNothing)
{
    auto phone = settled(lastLookPhone(false));
    phone.call("phone.lock");
    EXPECT_TRUE(phone.global("_timerLastLook").is_null());
}

TEST(Lifecycle, TheClockAloneCanBeKeptCurrentUnderLastLook)
{
    auto phone = settled(eveningPhone({{"updateLastLook", true}}).installed({"LastLook"}));
    phone.call("phone.lock");
    phone.settle(1);
    EXPECT_EQ(stripAlpha(phone), 0);
    for (int i = 0; i < 2; ++i) {
        blot(phone);
        phone.advance(60);
        EXPECT_TRUE(timeIsFresh(phone) && dateIsFresh(phone)) << "minute " << i;
    }
    EXPECT_EQ(stripAlpha(phone), 0);
    phone.advance(5 * hour);
    blot(phone);
    phone.advance(120);
    EXPECT_FALSE(dateIsFresh(phone)) << "five hours and no longer";
}

TEST(Lifecycle, TheLightEndsTheMinutesRefreshOfTheClock)
{
    auto phone = settled(eveningPhone({{"updateLastLook", true}}).installed({"LastLook"}));
    phone.call("phone.lock");
    phone.settle(1);
    EXPECT_TRUE(isValid(phone, "_timerLastLook"));
    phone.call("phone.wake");
    EXPECT_FALSE(isValid(phone, "_timerLastLook"));
}

TEST(Lifecycle, WithoutLastLookNothingKeepsTheClockCurrentInTheDark)
{
    auto phone = settledWith({{"updateLastLook", true}, {"showWidgetLastLook", true}});
    phone.call("phone.lock");
    EXPECT_TRUE(phone.global("_timerLastLook").is_null());
}

TEST(Lifecycle, TheStripGoesWithTheLightUnlessLastLookShowsIt)
{
    for (bool lastLook : {false, true}) {
        for (bool keepWidgets : {false, true}) {
            auto start = eveningPhone({{"showWidgetLastLook", keepWidgets}});
            auto phone = settled(lastLook ? start.installed({"LastLook"}) : start);
            EXPECT_EQ(stripAlpha(phone), 1);
            phone.call("phone.lock");
            EXPECT_EQ(stripAlpha(phone), lastLook && keepWidgets) << lastLook << keepWidgets;
            phone.call("phone.wake");
            EXPECT_EQ(stripAlpha(phone), 1);
        }
    }
}

TEST(Lifecycle, AppearingAgainEndsTheMinutesRefresh)
{
    auto phone = settled(lastLookPhone());
    phone.call("phone.lock");
    phone.settle(1);
    phone.send({{"instance", "CSCoverSheetViewController"}}, "viewWillAppear:", {false});
    phone.settle(2);
    blot(phone);
    phone.advance(59);
    EXPECT_FALSE(dateIsFresh(phone));
}

TEST(Lifecycle, LeavingTheLockScreenStopsWhatWasDue)
{
    using Leave = void (*)(Phone&);
    const Leave ways[] = {[](Phone& phone) { phone.call("phone.memoryWarning"); },
        [](Phone& phone) {
            phone.call("phone.openApp", {{"bundle", "com.example.app"}});
        },
        [](Phone& phone) { phone.call("phone.unlock"); }};
    for (Leave leave : ways) {
        auto phone = settled(lastLookPhone());
        phone.call("phone.lock");
        phone.settle(1);
        leave(phone);
        phone.settle(2);
        blot(phone);
        phone.send({{"instance", "SBFLockScreenDateViewController"}}, "description");
        phone.advance(1);
        EXPECT_FALSE(timeIsFresh(phone));
        phone.advance(57);
        EXPECT_FALSE(dateIsFresh(phone));
    }
}

TEST(Lifecycle, TheStockTimerDialNeverShows)
{
    auto phone = settledWith();
    phone.call("phone.timer", {{"seconds", 300}});
    phone.advance(1);
    EXPECT_FALSE(phone.has("stock.timerDial"));
    EXPECT_EQ(phone.global("isTimerRunning"), true);
    EXPECT_FALSE(phone.label("_timerLabel").hidden);
}

TEST(Lifecycle, TheListShowsAgainWhenTheCoverSheetGoes)
{
    auto phone = settledWith();
    auto list = phone.global("_notifVC");
    EXPECT_EQ(list.at("class"), "NCNotificationStructuredListViewController");
    phone.send({{"id", "stock.notificationList"}}, "setHidden:", {true});
    phone.send({{"instance", "CSCoverSheetViewController"}}, "viewWillDisappear:", {false});
    EXPECT_FALSE(phone.view("stock.notificationList").hidden);
}

TEST(Lifecycle, ADayOfLockingAndWakingLeavesOneOfEverything)
{
    auto phone = settledWith();
    for (int i = 0; i < 100; ++i) {
        phone.call("phone.lock");
        phone.advance(60);
        phone.call("phone.wake");
        phone.advance(5);
    }
    auto tree = phone.tree().json.dump();
    auto count = [&](const std::string& text) {
        int found = 0;
        for (auto at = tree.find(text); at != std::string::npos; at = tree.find(text, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count("\"id\":\"_timeLabel\""), 1);
    EXPECT_EQ(count("\"id\":\"_dateLabel\""), 1);
    EXPECT_EQ(phone.info().at("starts"), 1);
}
