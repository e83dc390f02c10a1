// Leaving the lock screen while its editor is open, in every way there is.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

constexpr const char* panelViews[] = {"_optionView", "_done", "_timeButton", "_dateButton"};

void expectClosed(Phone& phone)
{
    EXPECT_EQ(activeFlags(phone), Journal{});
    for (const char* view : panelViews)
        EXPECT_FALSE(phone.has(view)) << view;
    EXPECT_FALSE(phone.has("_widgetButton"));
    EXPECT_TRUE(phone.view("_timeBorderView").hidden);
    EXPECT_TRUE(phone.view("_dateBorderView").hidden);
    EXPECT_FALSE(phone.view("stock.notificationList").hidden);
}

void expectItOpens(Phone& phone)
{
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
    EXPECT_TRUE(phone.view("_optionView").onScreen);
    EXPECT_TRUE(phone.view("_widgetButton").onScreen);
    pressDone(phone);
    phone.settle();
    expectClosed(phone);
}

/// Adds and removals; only the last of them counts.
bool holdsTheLight(const Journal& journal)
{
    bool holds = false;
    for (const std::string& line : journal) {
        if (line.starts_with("idle timer:"))
            holds = line == "idle timer: add LYR";
    }
    return holds;
}

}

TEST(EditorLeaving, LockingClosesItFromEachPanel)
{
    for (const EditorTab& tab : editorTabs) {
        auto phone = editing();
        phone.tap(tab.button);
        phone.call("phone.lock");
        EXPECT_FALSE(holdsTheLight(takeJournal(phone)));
        for (const char* view : panelViews)
            EXPECT_FALSE(phone.has(view)) << view << " goes at once";
        phone.settle();
        expectClosed(phone);
        EXPECT_FALSE(phone.global("_longPress").is_null());
        phone.call("phone.wake");
        phone.settle();
        expectItOpens(phone);
    }
}

TEST(EditorLeaving, LockingMakesNoSound)
{
    auto phone = editing();
    phone.call("phone.lock");
    phone.settle();
    for (const std::string& line : takeJournal(phone))
        EXPECT_FALSE(line.starts_with("sound")) << line;
}

TEST(EditorLeaving, UnlockingClosesItAndTheNextLockScreenOpensItAgain)
{
    auto phone = editing();
    phone.tap("_dateButton");
    phone.call("phone.unlock");
    phone.settle();
    EXPECT_EQ(activeFlags(phone), Journal{});
    EXPECT_TRUE(phone.global("_longPress").is_null()) << "the home screen has no use for it";
    phone.call("phone.coverSheet");
    phone.settle();
    expectClosed(phone);
    EXPECT_FALSE(phone.global("_longPress").is_null());
    expectItOpens(phone);
}

TEST(EditorLeaving, UnlockingLetsTheScreenGoDarkAgain)
{
    auto phone = editing();
    phone.call("phone.unlock");
    phone.settle();
    Journal journal = takeJournal(phone);
    journal.insert(journal.begin(), "idle timer: add LYR");
    EXPECT_FALSE(holdsTheLight(journal));
}

TEST(EditorLeaving, UnlockingClosesTheNoticeToo)
{
    auto phone = editing();
    phone.tap("_alertOpen");
    phone.call("phone.unlock");
    phone.call("phone.coverSheet");
    phone.settle();
    openEditor(phone);
    EXPECT_TRUE(phone.view("_optionView").onScreen);
    EXPECT_TRUE(phone.view("_alertView").hidden);
}

TEST(EditorLeaving, TheRecogniserGoesWithTheLockScreenAndComesBackOnce)
{
    auto phone = settledWith();
    for (int i = 0; i < 3; ++i) {
        phone.call("phone.unlock");
        phone.settle();
        EXPECT_TRUE(phone.global("_longPress").is_null());
        phone.call("phone.coverSheet");
        phone.settle();
        EXPECT_FALSE(phone.global("_longPress").is_null());
    }
    phone.takeLog();
    openEditor(phone);
    const Journal journal = takeJournal(phone);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "sound 1519"), 1);
}

TEST(EditorLeaving, AMemoryWarningTakesTheViewsAwayAndALockMakesItRight)
{
    auto phone = editing();
    phone.tap("_widgetButton");
    phone.call("phone.memoryWarning");
    for (const char* view : panelViews)
        EXPECT_FALSE(phone.has(view)) << view;
    EXPECT_FALSE(phone.has("_widgetButton"));
    phone.settle();
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.settle();
    expectClosed(phone);
    expectItOpens(phone);
}

TEST(EditorLeaving, AnAppInFrontTakesThePanelAwayButForTheWidgetTab)
{
    auto phone = editing();
    phone.call("phone.openApp", {{"bundle", "com.example.app"}});
    for (const char* view : panelViews)
        EXPECT_FALSE(phone.has(view)) << view;
    phone.settle();
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.settle();
    expectItOpens(phone);
}

TEST(EditorLeaving, TheFrontDisplayCountsOnlyWithAnApplicationAndWhileEnabled)
{
    auto phone = editing();
    phone.send({{"instance", "SpringBoard"}}, "frontDisplayDidChange:", {nullptr});
    EXPECT_TRUE(phone.has("_optionView"));
    phone.call("settings.set", {{"values", {{"enabled", false}}}});
    phone.send({{"instance", "SpringBoard"}}, "frontDisplayDidChange:", {"app"});
    EXPECT_TRUE(phone.has("_optionView"));
    phone.call("settings.set", {{"values", {{"enabled", true}}}});
    phone.send({{"instance", "SpringBoard"}}, "frontDisplayDidChange:", {"app"});
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_TRUE(phone.has("_widgetButton"));
}

TEST(EditorLeaving, TheHomeButtonHasItsEffectBeforeTheNextRequestHoweverFastThatComes)
{
    auto phone = editing();
    const Json home{{"target", {{"instance", "SpringBoard"}}}, {"selector", "_simulateHomeButtonPress"}};
    const auto request = [](int id, const std::string& method, const Json& parameters) {
        return Json{{"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", parameters}}.dump();
    };
    for (int time = 0; time < 20; ++time) {
        phone.program().write(
            request(1000, "objc.send", home) + "\n" + request(1001, "global.get", {{"name", "_longPress"}}));
        phone.program().read();
        const Json reply = Json::parse(phone.program().read().value());
        ASSERT_TRUE(reply.at("result").at("value").is_null()) << "the home screen has no use for it";
        phone.call("phone.coverSheet");
        phone.settle();
        ASSERT_FALSE(phone.global("_longPress").is_null());
    }
}

TEST(EditorLeaving, LockingDuringAnAnimationLeavesNothingBehind)
{
    for (double moment : {0.1, 0.4}) {
        auto phone = settledWith();
        phone.pressAt(160, 300);
        phone.advance(moment);
        phone.call("phone.lock");
        phone.settle();
        expectClosed(phone);
        phone.call("phone.wake");
        phone.settle();
        openEditor(phone);
        phone.tap("_done");
        phone.advance(moment);
        phone.call("phone.lock");
        phone.call("phone.wake");
        phone.settle();
        expectClosed(phone);
        expectItOpens(phone);
    }
}

TEST(EditorLeaving, OpenedAgainWhileItStillClosesItStaysOpen)
{
    auto phone = editing();
    phone.tap("_done");
    phone.pressAt(160, 300, 0.55);
    phone.advance(2);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
    EXPECT_TRUE(phone.view("_optionView").onScreen);
    EXPECT_TRUE(phone.view("_done").onScreen);
    pressDone(phone);
    phone.settle();
    expectClosed(phone);
}

TEST(EditorLeaving, TheBatteryButtonGoesWithTheLightAndComesWithIt)
{
    auto phone = settledWith();
    EXPECT_TRUE(phone.view("_buttonCL").onScreen);
    EXPECT_TRUE(phone.view("_buttonCL2").hidden);
    phone.call("phone.lock");
    EXPECT_TRUE(phone.view("_buttonCL").hidden);
    phone.call("phone.wake");
    EXPECT_FALSE(phone.view("_buttonCL").hidden);
    phone.send({{"id", "_buttonCL"}}, "setHidden:", {true});
    phone.call("phone.wake");
    EXPECT_TRUE(phone.view("_buttonCL").hidden) << "light on a lit screen arms nothing";
}

TEST(EditorLeaving, TheBatteryButtonsFollowAChangeOfTheModeOnALitLockScreenOnly)
{
    const auto setMode = [](Phone& phone, bool on) {
        phone.send({{"id", "stock.battery"}}, "setSaverModeActive:", {on});
    };
    const auto shown
        = [](Phone& phone) { return std::pair(!phone.view("_buttonCL").hidden, !phone.view("_buttonCL2").hidden); };
    auto phone = settledWith();
    setMode(phone, true);
    EXPECT_EQ(shown(phone), std::pair(false, true));
    phone.send({{"id", "_buttonCL2"}}, "setHidden:", {true});
    setMode(phone, true);
    EXPECT_EQ(shown(phone), std::pair(false, false)) << "told the same again";
    setMode(phone, false);
    EXPECT_EQ(shown(phone), std::pair(true, false));

    phone.call("phone.lock");
    EXPECT_EQ(shown(phone), std::pair(false, false));
    setMode(phone, false);
    setMode(phone, true);
    EXPECT_EQ(shown(phone), std::pair(false, false)) << "in the dark";
    EXPECT_EQ(phone.global("_isLPM"), true);
    phone.call("phone.wake");
    EXPECT_EQ(shown(phone), std::pair(false, true)) << "the light brings the one of the present mode";

    phone.call("phone.lock");
    setMode(phone, false);
    phone.call("phone.wake");
    EXPECT_EQ(shown(phone), std::pair(true, false)) << "and takes the other away";
}

TEST(EditorLeaving, ThePluggedInPhonesChargingViewBringsNoBatteryButtonBack)
{
    auto phone = settledWith();
    phone.send({{"id", "_buttonCL"}}, "setHidden:", {true});
    phone.call("phone.charge", {{"charging", true}});
    EXPECT_TRUE(phone.has("stock.charging.battery"));
    EXPECT_TRUE(phone.view("_buttonCL").hidden);
}
