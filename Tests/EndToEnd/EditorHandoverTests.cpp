// A cover sheet that the shell loads after the first: the editor goes over to it whole.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

const Json second = {{"named", "second"}};

/// Another cover sheet over the first one. The shell has loaded its view when this returns.
void loadSecond(Phone& phone)
{
    phone.call("objc.new", {{"class", "UIView"}, {"name", "sheet"}});
    phone.send({{"named", "sheet"}}, "setAccessibilityIdentifier:", Json::array({"second"}));
    phone.send({{"named", "sheet"}}, "setFrame:", {{0, 0, 375, 812}});
    phone.send({{"id", "stock.window"}}, "addSubview:", Json::array({{{"named", "sheet"}}}));
    phone.call("objc.new", {{"class", "CSCoverSheetViewController"}, {"name", "second"}});
    phone.send(second, "setView:", Json::array({{{"named", "sheet"}}}));
    phone.send(second, "viewDidLoad");
}

Support::View inSecond(Phone& phone)
{
    return Support::View(phone.call("view.tree", {{"id", "second"}}));
}

constexpr const char* touched[] = {"_done", "_timeButton", "_dateButton", "_widgetButton", "_stepperButton",
    "_colorWheel1", "_colorWheel2", "_colorWheel3", "_colorWheel4", "_colorWheel5", "_showWell", "_alertOpen",
    "_alertClose", "_openFolder", "_buttonCL", "_buttonCL2"};
constexpr const char* changed[] = {"_segmentedControl", "_stepperView", "_sliderAlpha", "_sliderX", "_sliderY",
    "_segmentAlign", "_segmentStyle", "_segmentAlt", "_segmentWidget1", "_segmentWidget2", "_segmentWidget3"};

/// What each control sends to the cover sheet, by the control.
Json actionsFor(Phone& phone, const Json& sheet)
{
    constexpr int touchUpInside = 1 << 6, valueChanged = 1 << 12;
    Json actions;
    for (const char* id : touched)
        actions[id] = phone.send({{"id", id}}, "actionsForTarget:forControlEvent:", {sheet, touchUpInside});
    for (const char* id : changed)
        actions[id] = phone.send({{"id", id}}, "actionsForTarget:forControlEvent:", {sheet, valueChanged});
    return actions;
}

}

TEST(EditorHandover, EveryControlAndWheelAnswersToTheSecondAlone)
{
    auto phone = editing();
    const Json first = actionsFor(phone, coverSheet);
    for (const auto& [id, actions] : first.items())
        EXPECT_EQ(actions.size(), 1u) << id;
    loadSecond(phone);
    openEditor(phone);
    EXPECT_EQ(actionsFor(phone, second), first);
    const Json none = actionsFor(phone, coverSheet);
    for (const auto& [id, actions] : none.items())
        EXPECT_EQ(actions, Json::array()) << id;
    for (const char* picker : {"_pickerView1", "_pickerView2"}) {
        for (const char* role : {"delegate", "dataSource"}) {
            const auto described
                = [&](const Json& object, const char* what) { return phone.send(object, what).at("description"); };
            EXPECT_EQ(described({{"id", picker}}, role), described(second, "self")) << picker << role;
        }
    }
}

TEST(EditorHandover, TheStripAndTheBatteryButtonsStandOnTheSecond)
{
    auto phone = settledWith();
    loadSecond(phone);
    const auto sheet = inSecond(phone);
    for (const char* id : {"_widgetView", "_buttonCL", "_buttonCL2", "_timeLabel", "_dateLabel"})
        EXPECT_TRUE(sheet.find(id)) << id;
    const auto before = Support::View(phone.call("view.tree", {{"id", "stock.coverSheet"}}));
    for (const char* id : {"_widgetView", "_buttonCL", "_buttonCL2"})
        EXPECT_FALSE(before.find(id)) << id;
}

TEST(EditorHandover, APressOpensTheEditorOnTheSecondAndItWorks)
{
    auto phone = settled(editorPhone());
    loadSecond(phone);
    phone.settle(1);
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
    for (const char* id : {"_optionView", "_done", "_timeButton", "_dateButton", "_widgetButton"})
        EXPECT_TRUE(inSecond(phone).find(id)) << id;
    phone.tap("_dateButton");
    EXPECT_EQ(activeFlags(phone), Journal{"_datePress"});
    phone.setControl("_pickerView1", 3);
    EXPECT_EQ(phone.settings().at("customFontPicker"), phone.global("availableFonts").at(3));
    choose(phone, dateTab, colourSegment);
    phone.tap("_showWell");
    phone.settle(1);
    EXPECT_TRUE(inSecond(phone).find("colorWellView"));
    phone.tap("colorWellDone");
    phone.settle(1);
    pressDone(phone);
    EXPECT_EQ(activeFlags(phone), Journal{});
    EXPECT_FALSE(phone.has("_optionView"));
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"}) << "and it opens again";
}

TEST(EditorHandover, APressOnTheFirstOpensNothing)
{
    auto phone = settledWith();
    loadSecond(phone);
    phone.send({{"id", "second"}}, "setHidden:", {true});
    phone.takeLog();
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{});
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_EQ(takeJournal(phone), Journal{});
}

TEST(EditorHandover, AnOpenEditorIsClosedFirst)
{
    auto phone = editing();
    EXPECT_TRUE(phone.view("stock.notificationList").hidden);
    loadSecond(phone);
    const Journal journal = takeJournal(phone);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "idle timer: remove LYR"), 1);
    EXPECT_EQ(activeFlags(phone), Journal{});
    for (const char* id : {"_optionView", "_done", "_timeButton", "_dateButton", "_widgetButton"})
        EXPECT_FALSE(phone.has(id)) << id;
    EXPECT_TRUE(phone.view("_timeBorderView").hidden);
    EXPECT_FALSE(phone.view("stock.notificationList").hidden);
    phone.settle(1);
    openEditor(phone);
    EXPECT_TRUE(inSecond(phone).find("_optionView"));
}

TEST(EditorHandover, AnOpenColourSheetIsClosedFirst)
{
    auto phone = editing();
    choose(phone, timeTab, colourSegment);
    phone.tap("_showWell");
    phone.settle(1);
    loadSecond(phone);
    EXPECT_FALSE(phone.has("colorWellView"));
    EXPECT_EQ(phone.global("_colorPickerPress"), false);
    phone.settle(1);
    openEditor(phone);
    EXPECT_TRUE(inSecond(phone).find("_optionView"));
    EXPECT_TRUE(phone.view("_widgetButton").onScreen);
}

TEST(EditorHandover, TheTimeKeepsItsFont)
{
    auto phone = editing(editorPhone({{"customFont", "3"}}));
    pressDone(phone);
    loadSecond(phone);
    phone.send({{"id", "stock.coverSheet"}}, "removeFromSuperview");
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Quicksand-Medium") << "no font of the user's own is picked yet";
}
