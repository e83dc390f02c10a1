// What happens when the shell loads the library, and in which order.
#include "Tests/EndToEnd/Scenario.hpp"

#include <algorithm>
#include <csignal>

namespace {

struct Row {
    std::string className;
    std::string selector;
    std::string kind;
    bool operator==(const Row&) const = default;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.kind << " " << row.className << " " << row.selector;
}

std::vector<Row> withKind(
    const std::string& className, const std::string& kind, const std::vector<std::string>& selectors)
{
    std::vector<Row> rows;
    for (const std::string& selector : selectors)
        rows.push_back({className, selector, kind});
    return rows;
}

std::vector<Row> joined(const std::vector<std::vector<Row>>& parts)
{
    std::vector<Row> rows;
    for (const auto& part : parts)
        rows.insert(rows.end(), part.begin(), part.end());
    return rows;
}

std::vector<Row> mainTable()
{
    const std::string sheet = "CSCoverSheetViewController";
    const std::string date = "SBFLockScreenDateViewController";
    return joined({withKind("NCNotificationStructuredListViewController", "hook", {"viewDidLoad"}),
        withKind("CSCombinedListViewController", "hook", {"_listViewDefaultContentInsets"}),
        withKind(sheet, "hook",
            {"dateView",
                "_transitionChargingViewToVisible:showBattery:animated:", "viewWillAppear:", "viewWillDisappear:"}),
        withKind(sheet, "added", {"requestUpdateWidget"}), withKind(sheet, "hook", {"viewDidLoad"}),
        withKind(sheet, "added",
            {"didPressButtonCL:", "didPressButtonCL2:", "showLongPress:", "doneButton:", "timePressButton:",
                "datePressButton:", "widgetPressButton:", "updateButtonAppearance",
                "showAlert:", "closeAlert:", "openFolderButton:", "linkTapped", "sliderValueChangedAlpha:",
                "sliderValueChangedX:", "sliderValueChangedY:", "SegmentChangeViewValueChanged:", "alignValueChanged:",
                "styleValueChanged:", "altValueChanged:", "widget1ValueChanged:", "widget2ValueChanged:",
                "widget3ValueChanged:", "wellButton1:", "wellButton2:", "wellButton3:", "wellButton4:", "wellButton5:",
                "showWellButton:", "pickerShow", "numberOfComponentsInPickerView:",
                "pickerView:numberOfRowsInComponent:", "pickerView:viewForRow:forComponent:reusingView:",
                "pickerView:didSelectRow:inComponent:", "valueChange:", "stepperUpdate:"}),
        withKind("CSQuickActionsViewController", "hook", {"hasFlashlight", "hasCamera"}),
        withKind("NCNotificationListSectionRevealHintView", "hook", {"didMoveToWindow"}),
        withKind("_UIBatteryView", "hook", {"setSaverModeActive:"}),
        withKind("CSTeachableMomentsContainerViewController", "hook", {"_updateText:"}),
        withKind("SBFLockScreenDateView", "hook", {"initWithFrame:", "_updateLabels", "layoutSubviews"}),
        withKind(date, "hook", {"dateView", "viewDidLoad"}), withKind(date, "added", {"updateTime"}),
        withKind(date, "hook", {"viewWillAppear:", "viewWillDisappear:"}),
        withKind(date, "added", {"requestUpdateTime"}),
        withKind("SBHomeScreenViewController", "hook", {"viewWillAppear:"}),
        withKind("SpringBoard", "hook", {"didReceiveMemoryWarning", "frontDisplayDidChange:"}),
        withKind("SBFLockScreenDateSubtitleView", "hook", {"didMoveToWindow", "setString:"}),
        withKind("SBFLockScreenDateSubtitleDateView", "hook", {"didMoveToWindow"}),
        withKind("SBLockScreenTimerDialView", "hook", {"didMoveToWindow"}),
        withKind("SBLockScreenManager", "hook", {"lockUIFromSource:withOptions:"}),
        withKind("SBLockScreenManager", "added", {"requestUpdateWidget"}),
        withKind("SBBacklightController", "hook", {"turnOnScreenFullyWithBacklightSource:"}),
        withKind("SBBacklightController", "added", {"requestUpdateWidget"})});
}

std::vector<Row> headerTable()
{
    return withKind("NCNotificationListSectionHeaderView", "hook", {"layoutSubviews", "frame", "hidden"});
}

std::vector<Row> axonTable(const std::string& className)
{
    return {{className, "initWithFrame:", "hook"}, {className, "axonCheck:", "added"}};
}

/// What some systems have, and others not.
std::vector<Row> furtherTable()
{
    const std::string sheet = "CSCoverSheetViewController";
    const std::string date = "SBFLockScreenDateView";
    return joined(
        {withKind(sheet, "hook", {"viewDidAppear:"}), withKind("CSCoverSheetView", "hook", {"layoutSubviews"}),
            withKind(date, "hook", {"setContentAlpha:withSubtitleVisible:", "setTimeAlpha:subtitleAlpha:"}),
            withKind("SBFLockScreenDateViewController", "hook", {"updateTimerWithText:"}),
            withKind("NCNotificationListSectionRevealHintView", "hook", {"_configureRevealHintTitleIfNecessary"}),
            withKind(sheet, "hook", {"_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:"}),
            withKind("SBLockScreenManager", "hook", {"lockUIFromSource:withOptions:completion:"})});
}

std::vector<Row> hooksOf(Phone& phone)
{
    std::vector<Row> rows;
    const Json hooks = phone.call("objc.hooks").at("hooks");
    for (const Json& hook : hooks)
        rows.push_back({hook.at("class").is_null() ? "" : hook.at("class").get<std::string>(), hook.at("selector"),
            hook.at("kind")});
    return rows;
}

/// The other font extension's settings file on a phone that has it.
Json afontSettings(Phone& phone)
{
    return phone.call("file.read", {{"path", "/var/mobile/Library/Preferences/com.rpgfarm.afontprefs.plist"}})
        .at("plist");
}

Support::PhoneStart phoneWithAFont(const Support::TemporaryFolder& folder, bool disable, const std::string& stored)
{
    return eveningPhone({{"disableAFont", disable}})
        .installed({"AFont"})
        .file("/var/mobile/Library/Preferences/com.rpgfarm.afontprefs.plist", folder.put("afont.plist", stored));
}

std::string propertyList(const std::string& content)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" + content + "</dict></plist>";
}

}

TEST(StartUp, InstallsEveryInterceptionInItsOrder)
{
    auto phone = eveningPhone().start();
    EXPECT_EQ(hooksOf(phone), joined({mainTable(), axonTable(""), furtherTable()}));
}

TEST(StartUp, WithTheHeaderSwitchItsTableFollowsTheMainOne)
{
    auto phone = eveningPhone({{"hideNotifHeader", true}}).start();
    EXPECT_EQ(hooksOf(phone), joined({mainTable(), headerTable(), axonTable(""), furtherTable()}));
}

TEST(StartUp, SwitchedOffItInstallsTheAxonTableAlone)
{
    auto phone = settledWith({{"enabled", false}});
    EXPECT_EQ(hooksOf(phone), axonTable(""));
    EXPECT_FALSE(phone.has("_timeLabel"));
    EXPECT_FALSE(phone.view("stock.time").hidden);
}

TEST(StartUp, SwitchedOffItStillHidesTheHeaderIfThatIsAskedFor)
{
    auto phone = eveningPhone({{"enabled", false}, {"hideNotifHeader", true}}).start();
    EXPECT_EQ(hooksOf(phone), joined({headerTable(), axonTable("")}));
}

TEST(StartUp, TheAxonTableFindsItsClassWhereThatExtensionIsInstalled)
{
    auto phone = eveningPhone().installed({"Axon"}).start();
    EXPECT_EQ(hooksOf(phone), joined({mainTable(), axonTable("AXNView"), furtherTable()}));
    const Json hooks = phone.call("objc.hooks").at("hooks");
    const auto added
        = std::ranges::find_if(hooks, [](const Json& hook) { return hook.at("selector") == "axonCheck:"; });
    ASSERT_NE(added, hooks.end());
    EXPECT_EQ(added->at("types"), "v@:@");
    EXPECT_EQ(added->at("resolved"), true);
}

TEST(StartUp, AddedMethodsCarryTypeStringsMadeOfTheirArguments)
{
    auto phone = eveningPhone().start();
    std::map<std::string, std::string> types;
    const Json hooks = phone.call("objc.hooks").at("hooks");
    for (const Json& hook : hooks)
        if (hook.at("kind") == "added")
            types[hook.at("selector")] = hook.at("types");
    EXPECT_EQ(types.at("updateTime"), "v@:");
    EXPECT_EQ(types.at("showLongPress:"), "v@:@");
    EXPECT_EQ(types.at("pickerView:numberOfRowsInComponent:"), "q@:@q");
    EXPECT_EQ(types.at("pickerView:viewForRow:forComponent:reusingView:"), "@@:@qq@");
}

TEST(StartUp, ChangingTheMasterSwitchChangesNothingUntilTheShellIsRestarted)
{
    auto phone = settledWith();
    phone.set({{"enabled", false}});
    refresh(phone);
    EXPECT_TRUE(phone.has("_timeLabel"));
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    phone.settle();
    EXPECT_FALSE(phone.has("_timeLabel"));
}

TEST(StartUp, OpensTheCompanionLibrariesFirst)
{
    auto phone = eveningPhone().start();
    std::vector<std::string> opened;
    for (const Json& record : phone.takeLog("dlopen"))
        opened.push_back(record.at("path"));
    EXPECT_EQ(opened,
        (std::vector<std::string>{"/Library/MobileSubstrate/DynamicLibraries/AFont.dylib",
            "/System/Library/PrivateFrameworks/Weather.framework/Weather",
            "/Library/Frameworks/Cephei.framework/Cephei", "/usr/lib/libsparkcolourpicker.dylib",
            "/usr/lib/libweatherlyr.dylib"}));
}

TEST(StartUp, ARestartRequestReallyRestartsTheShellProcess)
{
    auto phone = settledWith({{"timeFormat", "HH:mm"}});
    auto before = phone.info();
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    auto after = phone.info();
    EXPECT_NE(after.at("pid"), before.at("pid"));
    EXPECT_EQ(after.at("restarts"), before.at("restarts").get<int>() + 1);
    EXPECT_EQ(after.at("safeMode"), false);
    phone.settle();
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41") << "settings outlive the restart";
}

TEST(StartUp, AKilledShellComesBackInSafeModeWithTheStockLockScreen)
{
    auto phone = settledWith();
    kill(phone.info().at("pid").get<int>(), SIGKILL);
    EXPECT_EQ(phone.info().at("safeMode"), true);
    phone.settle();
    EXPECT_FALSE(phone.has("_timeLabel"));
    EXPECT_FALSE(phone.view("stock.time").hidden);
    EXPECT_TRUE(phone.call("objc.hooks").at("hooks").empty());
}

TEST(StartUp, WithoutAFontItsSettingsAreLeftAlone)
{
    Support::TemporaryFolder folder;
    auto phone
        = phoneWithAFont(folder, true, propertyList("<key>other</key><string>kept</string>")).installed({}).start();
    EXPECT_EQ(afontSettings(phone), (Json{{"other", "kept"}}));
    EXPECT_TRUE(phone.global("_prefsAFont").is_null());
}

TEST(StartUp, AFontsBlacklistFollowsTheSetting)
{
    Support::TemporaryFolder folder;
    for (bool disable : {true, false}) {
        auto phone = phoneWithAFont(folder, disable,
            propertyList("<key>blacklist</key><dict><key>com.example.app</key><true/></dict>"
                         "<key>other</key><string>kept</string>"))
                         .start();
        EXPECT_EQ(afontSettings(phone),
            (Json{{"other", "kept"},
                {"blacklist",
                    {{"com.example.app", true}, {"com.apple.springboard", disable},
                        {"com.apple.Preferences", disable}}}}));
    }
}

TEST(StartUp, AFontsSettingsThatCannotBeReadAreLeftAlone)
{
    const std::string path = "/var/mobile/Library/Preferences/com.rpgfarm.afontprefs.plist";
    Support::TemporaryFolder folder;
    for (const std::string content : {"<plist><dict><key>blacklist</key>", "", "<plist><array/></plist>", "bplist00"}) {
        auto phone = phoneWithAFont(folder, true, content).start();
        EXPECT_EQ(phone.readFile(path), content);
        EXPECT_TRUE(phone.global("_prefsAFont").is_null());
    }
}

TEST(StartUp, AFontsBlacklistIsMadeWhereThereIsNone)
{
    Support::TemporaryFolder folder;
    const Json blacklist = {{"com.apple.springboard", true}, {"com.apple.Preferences", true}};
    auto phone = phoneWithAFont(folder, true, propertyList("<key>blacklist</key><string>odd</string>")).start();
    EXPECT_EQ(afontSettings(phone), (Json{{"blacklist", blacklist}}));
    EXPECT_EQ(phone.global("_prefsAFont"), (Json{{"blacklist", blacklist}}));
    auto withoutFile = eveningPhone({{"disableAFont", true}}).installed({"AFont"}).start();
    EXPECT_EQ(afontSettings(withoutFile), (Json{{"blacklist", blacklist}}));
}
