// The shell around the extension does what a real one does: it fades, slides, covers, locks by two messages, has
// devices without a torch, and starts before it was ever unlocked.
#include "Tests/EndToEnd/EditorScenario.hpp"

#include <cstdlib>
#include <filesystem>

namespace {

/// Runs the script that follows the package's unpacking, on a phone that is the folder. Whom it gives files to is noted
/// in "owners".
int runPostinst(const Support::TemporaryFolder& root, const Support::TemporaryFolder& notes)
{
    const std::string chown = notes.put("chown", "#!/bin/sh\necho \"$@\" >>'" + notes.at("owners") + "'\n");
    std::filesystem::permissions(chown, std::filesystem::perms::owner_all);
    const std::string command = "DPKG_ROOT='" + root.path().string() + "' PATH='" + notes.path().string()
        + "':\"$PATH\" /bin/sh '" + LYR_POSTINST + "' configure";
    return std::system(command.c_str());
}

const Json opaque = {{"alphaTime", "1"}, {"alphaDate", "1"}};
const Json dateController = {{"instance", "SBFLockScreenDateViewController"}};

double alphaOf(Phone& phone, const char* id)
{
    return phone.get(id).at("alpha");
}

void showPage(Phone& phone, unsigned long page)
{
    phone.send(coverSheet, "activatePage:animated:withCompletion:", {page, false, nullptr});
    phone.settle(1);
}

void countTimes(const Support::View& view, int& shown, int& hidden)
{
    if (view.id == "stock.time")
        ++(view.hidden ? hidden : shown);
    for (const Support::View& child : view.children)
        countTimes(child, shown, hidden);
}

constexpr unsigned long mainPage = 1, cameraPage = 2;

/// How often the screen was let go dark again, as each lock does once.
std::size_t releases(Phone& phone)
{
    std::size_t count = 0;
    for (const Json& record : phone.takeLog("idleTimer"))
        count += record.at("action") == "remove";
    return count;
}

}

TEST(StockFade, TheClockTheStripAndTheButtonsGoAlong)
{
    auto phone = settledWith(opaque);
    for (const double alpha : {0.25, 1.0}) {
        phone.send(dateController, "setContentAlpha:withSubtitleVisible:", {alpha, true});
        for (const char* id : {"_timeLabel", "_dateLabel", "_widgetView", "_buttonCL"})
            EXPECT_DOUBLE_EQ(alphaOf(phone, id), alpha) << id;
    }
}

TEST(StockFade, TheUsersOwnTransparencyIsAFactorOfIt)
{
    auto phone = settledWith({{"alphaTime", "0.5"}, {"alphaDate", "0.8"}});
    phone.send(dateController, "setContentAlpha:withSubtitleVisible:", {0.5, true});
    EXPECT_DOUBLE_EQ(alphaOf(phone, "_timeLabel"), 0.25);
    EXPECT_DOUBLE_EQ(alphaOf(phone, "_dateLabel"), 0.4);
    refresh(phone);
    EXPECT_DOUBLE_EQ(alphaOf(phone, "_timeLabel"), 0.25) << "a refresh keeps it";
}

TEST(StockFade, WithoutASubtitleThereIsNoDate)
{
    auto phone = settledWith(opaque);
    phone.send(dateController, "setContentAlpha:withSubtitleVisible:", {1.0, false});
    EXPECT_DOUBLE_EQ(alphaOf(phone, "_timeLabel"), 1);
    EXPECT_DOUBLE_EQ(alphaOf(phone, "_dateLabel"), 0);
}

TEST(StockFade, ThePasscodePageIsAlone)
{
    for (const char* system : systems) {
        auto phone = settled(eveningPhone(opaque).with("system", system));
        phone.call("phone.passcode", {{"shown", true}});
        EXPECT_TRUE(phone.view("stock.passcode").onScreen) << system;
        for (const char* id : {"_timeLabel", "_dateLabel", "_widgetView", "_buttonCL"})
            EXPECT_DOUBLE_EQ(alphaOf(phone, id), 0) << id << " on " << system;
        phone.call("phone.passcode", {{"shown", false}});
        for (const char* id : {"_timeLabel", "_dateLabel", "_widgetView"})
            EXPECT_DOUBLE_EQ(alphaOf(phone, id), 1) << id << " on " << system;
    }
}

TEST(StockFade, ThePasscodePageEndsTheEditing)
{
    auto phone = editing();
    phone.call("phone.passcode", {{"shown", true}});
    phone.advance(1);
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_EQ(releases(phone), 1u);
    phone.call("phone.passcode", {{"shown", false}});
    openEditor(phone);
    EXPECT_TRUE(phone.view("_done").onScreen);
}

TEST(StockSlide, TheClockTheStripAndTheButtonsGoAlong)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        constexpr double width = 375;
        auto phone = settled(eveningPhone().with("system", system));
        const char* const ofTheSheet[] = {"stock.dateView", "_widgetView", "_buttonCL"};
        std::vector<double> places;
        for (const char* id : ofTheSheet)
            places.push_back(phone.view(id).frame[0]);
        const auto expectSlide = [&](double slide) {
            for (std::size_t i = 0; i < places.size(); ++i)
                EXPECT_NEAR(phone.view(ofTheSheet[i]).frame[0], places[i] + slide, 0.01) << ofTheSheet[i];
            EXPECT_EQ(phone.view("_timeLabel").onScreen, slide == 0);
        };
        showPage(phone, cameraPage);
        expectSlide(-width);
        refresh(phone);
        expectSlide(-width);
        showPage(phone, mainPage);
        expectSlide(0);
    }
}

TEST(OtherDateViews, KeepTheirTime)
{
    for (const char* system : {"13.4", "14.0", "15.0"}) {
        SCOPED_TRACE(system);
        auto phone = settled(eveningPhone().with("system", system));
        phone.call("objc.new", {{"class", "SBFLockScreenDateView"}, {"name", "preview"}});
        phone.send({{"named", "preview"}}, "setFrame:", Json::array({{0, 0, 300, 300}}));
        phone.send({{"id", "stock.coverSheet"}}, "addSubview:", {{{"named", "preview"}}});
        phone.settle(1);
        int shown = 0, hidden = 0;
        countTimes(phone.tree(), shown, hidden);
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(hidden, 1);
    }
}

TEST(LongPress, OnANotificationIsTheNotifications)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        auto phone = settled(eveningPhone().with("system", system));
        phone.press("stock.notification", 1);
        phone.advance(1);
        EXPECT_FALSE(phone.has("_optionView"));
        EXPECT_TRUE(phone.get("stock.notification").at("isOpen"));
    }
}

TEST(LongPress, OnAControlIsTheControls)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        auto phone = settled(eveningPhone().with("system", system));
        phone.press("stock.flashlight", 1);
        phone.advance(1);
        EXPECT_FALSE(phone.has("_optionView"));
        EXPECT_TRUE(phone.takeLog("idleTimer").empty());
    }
}

TEST(LongPress, AScrolledListOpensNothing)
{
    auto phone = settledWith();
    const double before = phone.view("stock.notification").frame[1];
    phone.drag({160, 520}, {160, 440}, 1);
    phone.settle(1);
    EXPECT_LT(phone.view("stock.notification").frame[1], before);
    EXPECT_FALSE(phone.has("_optionView"));
}

TEST(LongPress, BesideThemOpensTheEditor)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        auto phone = settled(eveningPhone().with("system", system));
        openEditor(phone);
        EXPECT_TRUE(phone.view("_done").onScreen);
    }
}

TEST(LockForms, EachReachesTheExtensionOnce)
{
    for (const char* form : {"short", "long"}) {
        for (const char* endsIn : {"short", "long"}) {
            auto phone = editing(editorPhone().with("system", form == std::string("short") ? "13.4" : "15.0"));
            phone.call("phone.lock", {{"form", form}, {"endsIn", endsIn}});
            EXPECT_EQ(releases(phone), 1u) << form << " that ends in " << endsIn;
            phone.advance(1);
            EXPECT_FALSE(phone.has("_optionView")) << form << " that ends in " << endsIn;
            phone.call("phone.wake");
            phone.settle();
            EXPECT_TRUE(phone.view("_timeLabel").onScreen);
        }
    }
}

TEST(StartOrder, TheEditorOpensWheneverTheHomeScreenCame)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        for (const char* order : {"before", "after"}) {
            auto phone = settled(eveningPhone().with("homeScreen", order).with("system", system));
            openEditor(phone);
            EXPECT_TRUE(phone.has("_optionView")) << order;
        }
    }
}

TEST(Devices, WithoutATorchOrACameraGetNoButtonForIt)
{
    auto phone = settled(eveningPhone().with("flashlight", false).with("camera", false));
    EXPECT_FALSE(phone.view("stock.flashlight").onScreen);
    EXPECT_FALSE(phone.view("stock.camera").onScreen);
    auto other = settledWith();
    EXPECT_TRUE(other.view("stock.flashlight").onScreen);
    EXPECT_TRUE(other.view("stock.camera").onScreen);
}

TEST(RevealHint, IsReplacedThoughItsLabelIsMadeLate)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        auto phone = settled(eveningPhone({{"enabledCT2", true}, {"ctNoOlder", "All read"}}).with("system", system));
        EXPECT_EQ(phone.label("stock.revealHint.title").text, "All read");
    }
}

TEST(FirstUnlock, BringsTheSettings)
{
    for (const char* system : systems) {
        SCOPED_TRACE(system);
        auto phone
            = settled(eveningPhone({{"twentyFourTime", true}}).with("firstUnlock", false).with("system", system));
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
        phone.call("phone.firstUnlock");
        phone.settle(1);
        EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
    }
}

TEST(FirstUnlock, BringsTheColours)
{
    auto phone
        = settled(eveningPhone({{"colorTime", "4"}}).colours({{"colourTime", "#123456"}}).with("firstUnlock", false));
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#FFFFFFFF");
    phone.call("phone.firstUnlock");
    phone.settle(1);
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#123456FF");
}

TEST(FirstUnlock, LeavesTheStockScreenToWhoSwitchedTheExtensionOff)
{
    auto phone = settled(eveningPhone({{"enabled", false}}).with("firstUnlock", false));
    EXPECT_TRUE(phone.view("_timeLabel").onScreen) << "its settings are not known yet";
    phone.call("phone.firstUnlock");
    phone.settle(1);
    auto off = settledWith({{"enabled", false}});
    for (const char* id : {"stock.time", "stock.subtitle.label", "stock.notification", "stock.flashlight"})
        EXPECT_EQ(phone.view(id).onScreen, off.view(id).onScreen) << id;
    for (const char* id : {"_timeLabel", "_dateLabel", "_widgetView", "_buttonCL", "_buttonCL2"})
        EXPECT_FALSE(phone.has(id) && phone.view(id).onScreen) << id;
    phone.pressAt(160, 300, 1);
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.call("phone.unlock");
    phone.call("phone.coverSheet");
    phone.settle();
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_TRUE(phone.view("stock.time").onScreen);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(FirstUnlock, ChangesNothingWhereTheSettingsCouldBeRead)
{
    auto phone = settledWith();
    phone.call("settings.set", {{"values", {{"enabled", false}}}});
    phone.call("phone.protectedData", {{"available", true}});
    phone.settle(1);
    EXPECT_TRUE(phone.view("_timeLabel").onScreen) << "a change waits for the next start";
}

TEST(Preferences, AreReadAtTheStartAndNotAtAReload)
{
    auto phone = settledWith();
    EXPECT_GT(phone.call("counts.take").at("counts").at("preferenceReads"), 0);
    phone.set({{"twentyFourTime", true}});
    phone.call("notify.post", {{"name", "com.ostrel.lyrprefs/ReloadPrefs"}});
    refresh(phone);
    EXPECT_EQ(phone.call("counts.take").at("counts").at("preferenceReads"), 0);
    EXPECT_EQ(phone.label("_timeLabel").text, "21:41");
}

TEST(Wallpaper, WithoutAPictureTheStoredColoursStand)
{
    for (const char* source : {"1", "2", "3"}) {
        auto phone = settled(eveningPhone({{"colorTime", source}, {"colorDate", source}})
                                 .colours({{"colourTime", "#123456"}, {"colourDate", "#654321"}})
                                 .withoutWallpaper());
        EXPECT_EQ(phone.label("_timeLabel").textColour, "#123456FF") << source;
        EXPECT_EQ(phone.label("_dateLabel").textColour, "#654321FF") << source;
    }
}

TEST(System16, HidesTheTimeThatTheSystemDrawsElsewhere)
{
    auto phone = settled(eveningPhone().with("system", "16.0"));
    EXPECT_FALSE(phone.view("stock.prominentTime").onScreen);
    auto stock = settled(eveningPhone().with("system", "16.0").withoutExtension());
    EXPECT_TRUE(stock.view("stock.prominentTime").onScreen);
}

TEST(System16, ShowsATimerThatComesByTheNewMessage)
{
    auto phone = settled(eveningPhone().with("system", "16.0"));
    phone.call("phone.timer", {{"seconds", 90}});
    EXPECT_TRUE(phone.view("_timerLabel").onScreen);
    EXPECT_FALSE(phone.view("_dateLabel").onScreen);
}

TEST(PowerMode, IsSwitchedByTheClassThatTheSystemHas)
{
    for (const char* system : systems) {
        auto phone = settled(eveningPhone().with("system", system));
        phone.tap("_buttonCL");
        phone.advance(1);
        const auto records = phone.takeLog("batterySaver");
        ASSERT_EQ(records.size(), 1u) << system;
        EXPECT_EQ(records[0].at("mode"), 1) << system;
        EXPECT_TRUE(phone.view("_buttonCL2").onScreen) << system;
    }
}

TEST(PowerMode, WithoutASwitchTheButtonStays)
{
    auto phone = settled(eveningPhone().with("lacking", {"_CDBatterySaver", "_PMLowPowerMode"}));
    phone.tap("_buttonCL");
    phone.advance(1);
    EXPECT_TRUE(phone.view("_buttonCL").onScreen);
    EXPECT_FALSE(phone.view("_buttonCL2").onScreen);
}

TEST(FileRights, TheShellCannotWriteWhereOnlyRootMay)
{
    const std::string page = "/Library/PreferenceBundles/LYRPrefs.bundle/subTime.plist";
    auto phone = editing();
    const std::string before = phone.readFile(page);
    choose(phone, timeTab, colourSegment);
    phone.tap("_colorWheel5");
    phone.settle(1);
    EXPECT_EQ(phone.readFile(page), before);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(FreshlyInstalled, AColourThatIsPickedIsThereAfterTheNextStart)
{
    const Support::TemporaryFolder root, notes;
    ASSERT_EQ(runPostinst(root, notes), 0);
    EXPECT_TRUE(notes.read("owners").starts_with("501:501 ")) << notes.read("owners");
    const auto start = eveningPhone().root(root.path()).withoutWallpaper();
    auto phone = editing(start);
    choose(phone, timeTab, colourSegment);
    phone.send({{"id", "_showWell"}}, "setBackgroundColor:", Json::array({"#FF0000FF"}));
    phone.tap("_colorWheel5");
    phone.settle(1);
    EXPECT_EQ(phone.end(), 0);
    auto next = settled(start);
    EXPECT_EQ(next.label("_timeLabel").textColour, "#FF0000FF");
}

TEST(FreshlyInstalled, ColoursThatAreThereStay)
{
    const Support::TemporaryFolder root, notes;
    root.put(coloursPath.substr(1), "kept");
    ASSERT_EQ(runPostinst(root, notes), 0);
    EXPECT_EQ(root.read(coloursPath.substr(1)), "kept");
}
