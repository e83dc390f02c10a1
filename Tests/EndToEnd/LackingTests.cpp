// A phone of another system, which lacks a class or a method that the extension uses: the rest goes on.
#include "Tests/EndToEnd/Scenario.hpp"

#include <set>

namespace {

/// Every class that the tables of interceptions name, and every method with its class.
std::set<std::string> interceptedParts()
{
    auto phone = eveningPhone({{"hideNotifHeader", true}}).installed({"Axon"}).start();
    std::set<std::string> parts;
    const Json hooks = phone.call("objc.hooks").at("hooks");
    for (const Json& hook : hooks) {
        parts.insert(hook.at("class").get<std::string>());
        if (hook.at("kind") == "hook")
            parts.insert(hook.at("class").get<std::string>() + " " + hook.at("selector").get<std::string>());
    }
    return parts;
}

const char* const optionalClasses[] = {"UIColorWell", "UISegmentedControl", "UIStepper", "UISlider", "UIPickerView",
    "CAGradientLayer", "UILongPressGestureRecognizer", "NSLayoutConstraint", "NSTextAttachment", "WeatherApp",
    "SBScheduledAlarmObserver", "EKEventStore", "_CDBatterySaver", "FBSystemService", "HBPreferences",
    "SparkColourPickerUtils", "SBCoverSheetPresentationManager", "NSJSONSerialization", "NSNotificationCenter",
    "UIDevice", "NSTimer", "UIScreen"};

/// What the extension sends to classes that no documentation promises.
const char* const privateMessages[]
    = {"AXNView list", "CSCoverSheetView slideableContentView", "CSCoverSheetViewController idleTimerController",
        "FBSystemService sharedInstance", "FBSystemService exitAndRelaunch:", "HBPreferences initWithIdentifier:",
        "HBPreferences objectForKey:", "HBPreferences registerBool:default:forKey:",
        "HBPreferences registerObject:default:forKey:", "HBPreferences setObject:forKey:", "MTAlarm nextFireDate",
        "MTAlarmCache nextAlarm", "MTAlarmManager cache", "NCNotificationStructuredListViewController scrollView",
        "SBCoverSheetPresentationManager sharedInstance", "SBCoverSheetPresentationManager coverSheetViewController",
        "SBCoverSheetPresentationManager dashBoardViewController",
        "SBDashBoardIdleTimerController addIdleTimerDisabledAssertionReason:",
        "SBDashBoardIdleTimerController removeIdleTimerDisabledAssertionReason:",
        "SBDashBoardIdleTimerProvider addDisabledIdleTimerAssertionReason:",
        "SBDashBoardIdleTimerProvider removeDisabledIdleTimerAssertionReason:",
        "SBFLockScreenDateViewController _updateView", "SBFLockScreenDateViewController dateView",
        "SBFLockScreenDateViewController updateTime", "SBLockScreenManager sharedInstance",
        "SBLockScreenManager isLockScreenVisible", "SBScheduledAlarmObserver sharedInstance",
        "SBUILegibilityLabel setString:", "SBUILegibilityLabel setTextAlignment:", "SBUILegibilityLabel string",
        "SparkColourPickerUtils colourWithString:withFallback:", "SpringBoard sharedApplication",
        "SpringBoard _simulateHomeButtonPress",
        "SpringBoard _simulateHomeButtonPressWithCompletion:", "WeatherApp sharedManager",
        "WeatherApp highestTemperature", "WeatherApp lowestTemperature", "WeatherApp refreshWeatherData",
        "WeatherApp weatherData", "_CDBatterySaver batterySaver",
        "_CDBatterySaver setMode:", "_PMLowPowerMode sharedInstance", "_PMLowPowerMode setPowerMode:fromSource:"};

/// What it reads of objects that are not its own.
const char* const variables[] = {"SBFLockScreenDateView _timeLabel", "SBFLockScreenDateSubtitleView _label",
    "SBFLockScreenDateSubtitleDateView _alternateDateLabel", "SBFLockScreenDateView _dateSubtitleView",
    "SBFLockScreenDateView _prominentDisplayViewController", "NCNotificationListSectionRevealHintView _revealHintTitle",
    "SBScheduledAlarmObserver _alarmManager", "SBDashBoardIdleTimerController _dashBoardIdleTimerProvider"};

/// What a user does on an evening; the phone is to come through it without a crash.
void live(Phone& phone)
{
    phone.settle(3);
    openEditor(phone);
    for (const char* id : {"_dateButton", "_widgetButton", "_timeButton", "_showWell", "_done"}) {
        if (phone.has(id) && phone.view(id).onScreen)
            phone.tap(id);
        phone.advance(1);
    }
    phone.call("phone.lock");
    phone.advance(2);
    phone.call("phone.wake");
    phone.call("phone.charge", {{"charging", true}});
    phone.advance(5);
    phone.call("phone.unlock");
    phone.advance(1);
    phone.call("phone.coverSheet");
    phone.settle(3);
}

void expectLifeWithout(const std::string& part)
{
    SCOPED_TRACE(part);
    auto phone = eveningPhone({{"hideNotifHeader", true}}).installed({"Axon"}).with("lacking", {part}).start();
    ASSERT_NO_THROW(live(phone));
    auto info = phone.info();
    EXPECT_EQ(info.at("safeMode"), false);
    EXPECT_EQ(info.at("starts"), 1);
}

}

TEST(Lacking, AnyInterceptedClassOrMethodLeavesTheRestWorking)
{
    for (const std::string& part : interceptedParts())
        expectLifeWithout(part);
}

TEST(Lacking, AnyOptionalClassLeavesTheRestWorking)
{
    for (const char* part : optionalClasses)
        expectLifeWithout(part);
}

TEST(Lacking, AnyMessageToAPrivateClassLeavesTheRestWorking)
{
    for (const char* part : privateMessages)
        expectLifeWithout(part);
}

TEST(Lacking, AnyInstanceVariableLeavesTheRestWorking)
{
    for (const char* part : variables)
        expectLifeWithout(part);
}

TEST(Lacking, AMethodWithOtherTypesIsLeftAlone)
{
    auto phone = settled(
        eveningPhone({{"hiddenCamera", true}}).with("lacking", {"CSQuickActionsViewController hasCamera=@16@0:8"}));
    EXPECT_TRUE(phone.view("stock.camera").onScreen);
    const Json hooks = phone.call("objc.hooks").at("hooks");
    for (const Json& hook : hooks) {
        if (hook.at("selector") == "hasCamera")
            EXPECT_EQ(hook.at("resolved"), false);
    }
}

TEST(Lacking, AnyMethodWithOtherTypesLeavesTheRestWorking)
{
    for (const std::string& part : interceptedParts()) {
        if (part.find(' ') != part.npos)
            expectLifeWithout(part + "=q16@0:8");
    }
}

TEST(Lacking, AClassIsLookedUpInVainByTheExtensionAlone)
{
    auto phone = settled(eveningPhone().with("lacking", {"CSQuickActionsViewController"}));
    int unresolved = 0;
    const Json hooks = phone.call("objc.hooks").at("hooks");
    for (const Json& hook : hooks)
        unresolved += hook.at("resolved") == false && hook.at("table") != "further";
    EXPECT_EQ(unresolved, 4) << "two quick actions, and the other extension's view";
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    phone.call("objc.new", {{"class", "CSQuickActionsViewController"}, {"name", "stock"}});
}

// The texts that the library reads are read all the same; what is no colour is white.
TEST(Lacking, WithoutTheColourLibraryTheColoursAreReadAndWhiteStandsForNone)
{
    auto phone = settled(eveningPhone({{"colorTime", "4"}, {"colorDate", "4"}, {"dateOption", "0"}})
                             .with("lacking", {"SparkColourPickerUtils"})
                             .colours(Json::object()));
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF");
    EXPECT_EQ(phone.view("_SL").tint, "#FFFFFFFF");
    EXPECT_EQ(phone.label("_sunLabel").textColour, "#FFFFFFFF");
    const std::pair<Json, const char*> texts[]
        = {{"#123456", "#123456FF"}, {"#fedcba", "#FEDCBAFF"}, {"#FF0000:0.5", "#FF000080"},
            {"#00FF00:1.00", "#00FF00FF"}, {"#0000FF:0", "#0000FF00"}, {"#0000FF:.5", "#0000FF80"},
            {"#0000FF:7", "#0000FFFF"}, {"#12345", "#FFFFFFFF"}, {"#1234567", "#FFFFFFFF"}, {"123456", "#FFFFFFFF"},
            {"#12345G", "#FFFFFFFF"}, {"#0x1234", "#FFFFFFFF"}, {"#123456:", "#FFFFFFFF"}, {"#123456:.", "#FFFFFFFF"},
            {"#123456:1.2.3", "#FFFFFFFF"}, {"#123456:-1", "#FFFFFFFF"}, {"#123456:half", "#FFFFFFFF"},
            {"#123456 0.5", "#FFFFFFFF"}, {"", "#FFFFFFFF"}, {"reddish", "#FFFFFFFF"}, {5, "#FFFFFFFF"}};
    for (const auto& [text, colour] : texts) {
        phone.setColours({{"colourTime", text}, {"colourTextWidget", text}, {"colourWidget", text}});
        refresh(phone);
        EXPECT_EQ(phone.label("_timeLabel").textColour, colour) << text;
        EXPECT_EQ(phone.label("_sunLabel").textColour, colour) << text;
        EXPECT_EQ(phone.view("_SL").tint, colour) << text;
    }
}
