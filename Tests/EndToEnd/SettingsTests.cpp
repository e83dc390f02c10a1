// Where every setting is kept, and how a change of one arrives.
#include "Tests/EndToEnd/Scenario.hpp"

static constexpr const char* settingsFile = "/var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";

TEST(Settings, AnEmptyDomainGivesEveryVariableItsDefault)
{
    const Json defaults = {{"enabled", true}, {"enabledCustom", true}, {"enableTime", true}, {"enableDate", true},
        {"chargeAnim", false}, {"showWidget", true}, {"showWidgetLastLook", false}, {"updateLastLook", false},
        {"hiddenFlashlight", false}, {"hiddenCamera", false}, {"twentyFour", false}, {"twentyFourTime", false},
        {"hideNotifHeader", false}, {"amountEvent", "0"}, {"rangeEvent", "1"}, {"dateOption", "2"},
        {"alternateOption", "3"}, {"sunOption", "1"}, {"battOption", "1"}, {"hlOption", "2"}, {"highLowOption", "1"},
        {"colourIconWeather", true}, {"shadowText", false}, {"useCustomFont2", false}, {"disableAFont", false},
        {"timeFormat", "hh.mm"}, {"dateFormat", "EEE,MMM dd"}, {"alternateFormat", "EEE, dd MMM Y G"},
        {"customFont", "1"}, {"styleDate", "4"}, {"alignTime", "2"}, {"alignDate", "2"}, {"XtimeLabel", "0"},
        {"XdateLabel", "0"}, {"YtimeLabel", "0"}, {"YdateLabel", "0"}, {"YwidgetView", "0"}, {"XwidgetView", "0"},
        {"yNC", "185"}, {"Ymedia", "400"}, {"sizeWidget", "1.0"}, {"colorTextWidget", "4"}, {"colorWidget", "1"},
        {"colorTime", "4"}, {"colorDate", "4"}, {"sizeTimeLabel", "90"}, {"sizeDateLabel", "20"}, {"alphaTime", "0.8"},
        {"alphaDate", "0.8"}, {"listFont", "1"}, {"listFont2", "1"}, {"enabledCT", true},
        {"customText", "Swipe up to open"}, {"enabledCT2", false}, {"ctNoOlder", "No Older Notifications"}};
    ASSERT_EQ(defaults.size(), 55u);
    auto phone = eveningPhone().start();
    Json bound;
    for (const auto& [key, value] : defaults.items())
        bound[key] = phone.bound(key);
    EXPECT_EQ(bound, defaults);
    EXPECT_EQ(phone.settings(), Json::object()) << "nothing is stored by reading defaults";
}

TEST(Settings, StoredValuesReachTheVariablesAtStart)
{
    auto phone = eveningPhone({{"enableDate", false}, {"sizeTimeLabel", "72"}, {"timeFormat", "HH:mm"}}).start();
    EXPECT_EQ(phone.bound("enableDate"), false);
    EXPECT_EQ(phone.bound("sizeTimeLabel"), "72");
    EXPECT_EQ(phone.bound("timeFormat"), "HH:mm");
}

TEST(Settings, AfterAReloadTheNewValuesAreBound)
{
    auto phone = eveningPhone().start();
    phone.set({{"sizeTimeLabel", "64"}, {"alphaTime", "0.5"}});
    EXPECT_EQ(phone.bound("sizeTimeLabel"), "64");
    EXPECT_EQ(phone.bound("alphaTime"), "0.5");
}

TEST(Settings, AThousandReloadsLeaveTheVariablesAlive)
{
    auto phone = eveningPhone({{"timeFormat", "HH"}}).start();
    for (int i = 0; i < 1000; ++i)
        postReload(phone);
    EXPECT_EQ(phone.bound("timeFormat"), "HH");
    EXPECT_EQ(phone.bound("dateFormat"), "EEE,MMM dd");
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").text, "21");
}

TEST(Settings, AChangedSettingIsSeenAtTheNextRefresh)
{
    auto phone = settledWith();
    phone.set({{"twentyFourTime", true}});
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
}

TEST(Settings, NumbersServeAsWellAsText)
{
    auto phone = settledWith({{"sizeTimeLabel", 60}, {"alphaTime", 0.25}, {"XtimeLabel", -12.5}, {"alignTime", 3}});
    auto label = phone.label("_timeLabel");
    EXPECT_EQ(label.fontSize, 60);
    EXPECT_DOUBLE_EQ(label.alpha, 0.25);
    EXPECT_EQ(label.frame[0], -5.5);
    EXPECT_EQ(label.alignment, 2);
}

TEST(Settings, TextThatIsNoNumberCountsAsZero)
{
    auto phone = settledWith({{"XtimeLabel", "left"}, {"YtimeLabel", ""}, {"alphaTime", "opaque"}});
    auto label = phone.label("_timeLabel");
    EXPECT_EQ(label.frame, (Rectangle{7, 0, 345, 180}));
    EXPECT_EQ(label.alpha, 0);
}

TEST(Settings, ValuesOfOtherKindsCountAsTheDefault)
{
    Support::TemporaryFolder folder;
    auto file = folder.put("odd.plist", R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>sizeTimeLabel</key><array><integer>1</integer></array>
<key>timeFormat</key><dict/>
<key>dateOption</key><data>AAAA</data>
<key>alignTime</key><date>2020-11-15T21:41:00Z</date>
<key>enableDate</key><array/>
</dict></plist>)");
    auto phone = settled(Phone::at(evening).file(settingsFile, file));
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    EXPECT_EQ(phone.label("_timeLabel").fontSize, 90);
    EXPECT_EQ(phone.label("_timeLabel").alignment, 1);
}

TEST(Settings, NumbersBeyondAllReasonCrashNothing)
{
    for (const Json& absurd : {Json("1e308"), Json("nan"), Json("-inf"), Json("99999999999999999999"), Json(-1e300)}) {
        auto phone = settledWith({{"sizeTimeLabel", absurd}, {"sizeDateLabel", absurd}, {"XtimeLabel", absurd},
            {"YdateLabel", absurd}, {"alphaTime", absurd}, {"dateOption", absurd}, {"styleDate", absurd},
            {"customFont", absurd}, {"alternateOption", absurd}});
        phone.capture();
        EXPECT_EQ(phone.info().at("safeMode"), false) << absurd;
    }
}

TEST(Settings, APropertyListThatIsNoneCountsAsEmpty)
{
    Support::TemporaryFolder folder;
    auto file = folder.put("broken.plist", "bplist00 this is no property list");
    auto phone = settled(Phone::at(evening).file(settingsFile, file));
    EXPECT_EQ(phone.bound("sizeTimeLabel"), "90");
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
}

TEST(Settings, AColourThatIsAbsentFromTheColourFileIsWhite)
{
    auto phone = settled(eveningPhone().colours({{"colourDate", "#102030"}}));
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF");
    EXPECT_EQ(phone.label("_dateLabel").textColour, "#102030FF");
}

TEST(Settings, ColourTextsAreReadInBothForms)
{
    auto phone = settled(eveningPhone().colours({{"colourTime", "#336699:1.00"}, {"colourDate", "#aabbcc:0.5"}}));
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#336699FF");
    EXPECT_EQ(phone.label("_dateLabel").textColour, "#AABBCC80");
}

TEST(Settings, AColourTextOfNonsenseIsWhite)
{
    for (const Json& nonsense : {Json("red"), Json("#12"), Json("#GGHHII"), Json(""), Json(7), Json::array()}) {
        auto phone = settled(eveningPhone().colours({{"colourTime", nonsense}}));
        EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF") << nonsense;
    }
}

TEST(Settings, AnUnreadableColourFileMakesEveryColourWhite)
{
    auto start = eveningPhone().colours({{"colourTime", "#102030"}});
    auto phone = start.start();
    phone.call("file.fault",
        {{"path", "/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist"}, {"operation", "read"},
            {"error", "EACCES"}});
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF");
}

TEST(Settings, ANewColourFileIsReadAtTheNextRefresh)
{
    auto phone = settled(eveningPhone().colours({{"colourTime", "#102030"}}));
    phone.setColours({{"colourTime", "#FF8000"}});
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FF8000FF");
}
