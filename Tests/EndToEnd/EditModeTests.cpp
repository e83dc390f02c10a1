// Edit mode: the long press that enters it, its tabs, and Done.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

const Journal sourcesWritten = {"set colorTime = \"4\"", "set colorDate = \"4\"", "set colorWidget = \"5\"",
    "set colorTextWidget = \"4\"", "set customFont = \"5\""};

Journal opening()
{
    Journal journal = {"idle timer: add LYR", "sound 1519", "animation 0.5 0.0 65536"};
    journal.insert(journal.end(), sourcesWritten.begin(), sourcesWritten.end());
    return journal;
}

bool listIsHidden(Phone& phone)
{
    return phone.view("stock.notificationList").hidden;
}

constexpr const char* overlayViews[] = {"_optionView", "_done", "_timeButton", "_dateButton", "_widgetButton"};

}

TEST(EditMode, ALongPressOpensItOnTheTimePanel)
{
    auto phone = settledWith();
    EXPECT_FALSE(phone.global("_longPress").is_null());
    EXPECT_FALSE(phone.has("_optionView"));
    openEditor(phone);
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
    EXPECT_TRUE(phone.global("_longPress").is_null());
    EXPECT_TRUE(listIsHidden(phone));
    for (const char* view : overlayViews) {
        EXPECT_TRUE(phone.view(view).onScreen) << view;
        EXPECT_EQ(phone.view(view).alpha, 1) << view;
    }
}

TEST(EditMode, ThePanelIsBehindDoneAndTheTabsLieOverIt)
{
    auto phone = editing();
    std::vector<std::string> views;
    const Json cover = phone.call("view.tree", {{"id", "stock.coverSheet"}});
    for (const Json& child : cover.at("children"))
        views.push_back(child.at("id").is_string() ? child.at("id") : "");
    ASSERT_GT(views.size(), std::size(overlayViews));
    EXPECT_EQ(std::vector(views.end() - std::size(overlayViews), views.end()),
        std::vector<std::string>(std::begin(overlayViews), std::end(overlayViews)));
}

TEST(EditMode, OpeningHoldsTheScreenLitSoundsAndWritesTheSourcesAsTexts)
{
    auto phone = settledWith();
    phone.takeLog();
    openEditor(phone);
    EXPECT_EQ(takeJournal(phone), opening());
    const Json stored = phone.settings();
    for (auto [key, value] : {std::pair{"colorTime", "4"}, {"colorDate", "4"}, {"colorWidget", "5"},
             {"colorTextWidget", "4"}, {"customFont", "5"}})
        EXPECT_EQ(stored.at(key), value) << key;
}

TEST(EditMode, SwitchedOffALongPressChangesNothing)
{
    auto phone = settledWith({{"enabledCustom", false}});
    phone.takeLog();
    openEditor(phone);
    EXPECT_EQ(takeJournal(phone), Journal{});
    EXPECT_FALSE(listIsHidden(phone));
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_FALSE(phone.global("_longPress").is_null());
}

TEST(EditMode, AShortTouchOpensNothing)
{
    auto phone = settledWith();
    phone.takeLog();
    phone.pressAt(160, 300, 0.4);
    phone.advance(1);
    EXPECT_EQ(takeJournal(phone), Journal{});
    EXPECT_FALSE(phone.has("_optionView"));
}

TEST(EditMode, APressInTheBottomBandHidesTheListAndHoldsTheLightAlone)
{
    auto phone = settledWith();
    phone.takeLog();
    phone.down(190, 650);
    phone.advance(0.6);
    phone.move(190, 655);
    phone.up(190, 655);
    phone.advance(1);
    const Journal everyCallback(3, "idle timer: add LYR");
    EXPECT_EQ(takeJournal(phone), everyCallback) << "began, changed and ended";
    EXPECT_TRUE(listIsHidden(phone));
    EXPECT_FALSE(phone.has("_optionView"));
    EXPECT_FALSE(phone.global("_longPress").is_null());
    phone.pressAt(160, 300);
    phone.advance(1);
    pressDone(phone);
    EXPECT_FALSE(listIsHidden(phone));
    const Journal journal = takeJournal(phone);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "idle timer: remove LYR"), 1);
}

TEST(EditMode, TheBandBeginsJustBelowTwoHundredPointsFromTheBottom)
{
    for (auto [y, opens] : {std::pair{612.0, true}, {612.5, false}}) {
        auto phone = settledWith();
        phone.pressAt(190, y);
        phone.advance(1);
        EXPECT_EQ(phone.has("_optionView"), opens) << y;
    }
}

TEST(EditMode, TheFingerMayMoveAHundredPointsMeanwhile)
{
    for (auto [distance, opens] : {std::pair{90, true}, {120, false}}) {
        auto phone = settledWith();
        EXPECT_EQ(phone.global("_allowableMovement"), 100);
        phone.drag({100, 250}, {100.0 + distance, 250}, 0.4);
        phone.down(100, 250);
        phone.move(100.0 + distance, 250);
        phone.advance(0.6);
        phone.up(100.0 + distance, 250);
        phone.advance(1);
        EXPECT_EQ(phone.has("_optionView"), opens) << distance;
    }
}

TEST(EditMode, ASecondLongPressHasNothingToOpen)
{
    auto phone = editing();
    openEditor(phone);
    EXPECT_EQ(takeJournal(phone), Journal{});
    EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
}

TEST(EditMode, EachTabMakesItsPanelTheOnlyActiveOne)
{
    auto phone = editing();
    for (const EditorTab* tab : {&dateTab, &widgetTab, &timeTab, &widgetTab, &dateTab, &timeTab}) {
        phone.tap(tab->button);
        EXPECT_EQ(activeFlags(phone), Journal{tab->flag});
        EXPECT_TRUE(refreshes(phone)) << tab->button;
        EXPECT_TRUE(phone.global("_longPress").is_null()) << tab->button;
        EXPECT_EQ(phone.segments("_segmentedControl").segments, tab->segments);
        EXPECT_EQ(takeJournal(phone), Journal{}) << "a tab neither sounds nor stores";
    }
    EXPECT_EQ(phone.global("_initialSegmentCount"), 3);
}

TEST(EditMode, TheDatesExtraSegmentComesOnceAndGoesWithIt)
{
    auto phone = editing();
    for (int i = 0; i < 3; ++i)
        phone.tap("_dateButton");
    EXPECT_EQ(phone.segments("_segmentedControl").segments, dateTab.segments);
    phone.setControl("_segmentedControl", dateOptionSegment);
    phone.tap("_timeButton");
    EXPECT_EQ(phone.segments("_segmentedControl").segments, timeTab.segments);
    EXPECT_EQ(phone.segments("_segmentedControl").selected, 0);
    EXPECT_FALSE(phone.view("_pickerView1").hidden);
    EXPECT_TRUE(phone.view("_pickerView2").hidden);
}

TEST(EditMode, TheSizesLabelAndTheBorderNameWhatIsEdited)
{
    for (auto [style, border] : {std::pair{"light", "#FFFFFFFF"}, {"dark", "#000000FF"}}) {
        auto phone = editing(editorPhone().style(style));
        struct {
            const EditorTab* tab;
            const char* label;
            bool time;
            bool date;
        } rows[] = {{&timeTab, "Time Font Size", true, false}, {&dateTab, "Date Font Size", false, true},
            {&widgetTab, nullptr, false, false}};
        for (const auto& row : rows) {
            phone.tap(row.tab->button);
            if (row.label) {
                EXPECT_EQ(phone.label("_stepperLabel").text, row.label);
            }
            EXPECT_EQ(phone.label("_stepperLabel2").text, "");
            EXPECT_EQ(phone.view("_timeBorderView").hidden, !row.time);
            EXPECT_EQ(phone.view("_dateBorderView").hidden, !row.date);
        }
        phone.tap("_timeButton");
        const auto view = phone.view("_timeBorderView");
        EXPECT_EQ(view.alpha, 0.7);
        EXPECT_EQ(view.json.at("layer").at("cornerRadius"), 15);
        EXPECT_EQ(view.json.at("layer").at("borderWidth"), 3);
        EXPECT_EQ(view.json.at("layer").at("borderColor"), border) << style;
    }
}

TEST(EditMode, TheActiveTabIsGreyAndTheOthersPlain)
{
    struct {
        const char* style;
        const char* tint;
        const char* ground;
    } looks[] = {{"light", "#000000FF", "#FFFFFF80"}, {"dark", "#FFFFFFFF", "#00000066"}};
    for (const auto& look : looks) {
        auto phone = editing(editorPhone().style(look.style));
        for (const EditorTab& active : editorTabs) {
            phone.tap(active.button);
            for (const EditorTab& tab : editorTabs) {
                const auto button = phone.view(tab.button);
                EXPECT_EQ(button.background, &tab == &active ? "#808080D9" : look.ground) << look.style << tab.button;
                EXPECT_EQ(button.tint, look.tint) << look.style << tab.button;
            }
        }
    }
}

TEST(EditMode, DoneTakesAllAwayAndRedrawsTheClock)
{
    auto phone = editing();
    phone.tap("_done");
    EXPECT_EQ(takeJournal(phone), (Journal{"idle timer: remove LYR", "animation 0.5 0.0 65536"}));
    EXPECT_FALSE(listIsHidden(phone));
    EXPECT_FALSE(phone.global("_longPress").is_null()) << "it is back before the panel is away";
    EXPECT_TRUE(phone.has("_optionView"));
    phone.advance(0.45);
    EXPECT_TRUE(phone.has("_optionView"));
    phone.advance(0.1);
    for (const char* view : overlayViews)
        EXPECT_FALSE(phone.has(view)) << view;
    EXPECT_TRUE(phone.view("_timeBorderView").hidden);
    EXPECT_TRUE(phone.view("_dateBorderView").hidden);
    EXPECT_TRUE(refreshes(phone));
    EXPECT_EQ(activeFlags(phone), Journal{});
}

TEST(EditMode, TheWidgetTabGoesUnlikeTheOthersShownAndOpaque)
{
    auto phone = editing();
    phone.call("objc.new", {{"class", "NSMutableArray"}, {"name", "kept"}});
    for (const char* view : overlayViews)
        phone.send({{"named", "kept"}}, "addObject:", Json::array({{{"id", view}}}));
    phone.send({{"id", "_widgetButton"}}, "setHidden:", {true});
    phone.send({{"id", "_widgetButton"}}, "setAlpha:", {0.3});
    pressDone(phone);
    EXPECT_EQ(phone.send({{"named", "kept"}}, "valueForKey:", {"hidden"}), (Json{true, true, true, true, false}));
    EXPECT_EQ(phone.send({{"named", "kept"}}, "valueForKey:", {"alpha"}), (Json{0, 0, 0, 0, 1}));
}

TEST(EditMode, AfterDoneALongPressOpensItAgainOnTheTimePanel)
{
    auto phone = editing();
    for (const EditorTab& tab : editorTabs) {
        phone.tap(tab.button);
        pressDone(phone);
        phone.set({{"colorTime", "1"}, {"colorDate", "1"}, {"colorWidget", "1"}, {"customFont", "1"}});
        phone.settle();
        phone.takeLog();
        openEditor(phone);
        EXPECT_EQ(takeJournal(phone), opening());
        EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
        EXPECT_EQ(phone.segments("_segmentedControl").segments, timeTab.segments);
        for (const char* view : overlayViews)
            EXPECT_TRUE(phone.view(view).onScreen) << view;
    }
}

TEST(EditMode, AHundredTimesOpenedItHasOneOfEverything)
{
    auto phone = settledWith();
    const auto views = phone.tree().json.dump().size();
    for (int i = 0; i < 100; ++i) {
        openEditor(phone);
        pressDone(phone);
    }
    phone.settle();
    EXPECT_NEAR(phone.tree().json.dump().size(), views, 200);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

struct OverlayFrames {
    double width, height;
    double x, panelWidth;
};

class EditorOverlay : public ::testing::TestWithParam<OverlayFrames> {
protected:
    static void expectFrames(Phone& phone, double panelTop, double buttonsTop)
    {
        const auto& [width, height, x, panelWidth] = GetParam();
        const auto frameOf = [&phone](const char* id) { return phone.view(id).frame; };
        EXPECT_EQ(frameOf("_optionView"), (Rectangle{x, panelTop, panelWidth, 240}));
        EXPECT_EQ(frameOf("_done"), (Rectangle{x + panelWidth - 90, buttonsTop, 90, 40}));
        EXPECT_EQ(frameOf("_timeButton"), (Rectangle{x, buttonsTop, 85, 40}));
        EXPECT_EQ(frameOf("_dateButton"), (Rectangle{x + 85, buttonsTop, 85, 40}));
        EXPECT_EQ(frameOf("_widgetButton"), (Rectangle{x + 170, buttonsTop, 85, 40}));
    }
};

TEST_P(EditorOverlay, LiesAboveTheBottomAndParksBelowIt)
{
    const double height = GetParam().height;
    auto phone = editing(editorPhone().screen(GetParam().width, height, 2));
    expectFrames(phone, height - 345, height - 395);
    phone.send(coverSheet, "doneButton:", {nullptr});
    expectFrames(phone, 1200, 1200);
}

INSTANTIATE_TEST_SUITE_P(Screens, EditorOverlay,
    testing::Values(OverlayFrames{320, 568, 10, 300}, OverlayFrames{375, 812, 10, 355},
        OverlayFrames{499, 900, 10, 479}, OverlayFrames{502, 900, -189, 880}, OverlayFrames{1024, 768, 138, 748},
        OverlayFrames{768, 1024, -118, 1004}),
    [](const auto& screen) {
        return std::to_string(static_cast<int>(screen.param.width)) + "x"
            + std::to_string(static_cast<int>(screen.param.height));
    });

TEST(EditMode, OnAScreenOfFiveHundredPointsTheOverlayKeepsItsFrames)
{
    for (double width : {500.0, 501.0}) {
        auto phone = editing(editorPhone().screen(width, 900, 2));
        EXPECT_EQ(activeFlags(phone), Journal{"_timePress"});
        for (const char* view : overlayViews)
            EXPECT_EQ(phone.view(view).frame, (Rectangle{0, 0, 0, 0})) << view;
        phone.send({{"id", "_optionView"}}, "setFrame:", {{1, 2, 3, 4}});
        phone.send(coverSheet, "doneButton:", {nullptr});
        phone.settle();
        EXPECT_FALSE(phone.has("_optionView"));
        openEditor(phone);
        EXPECT_EQ(phone.view("_optionView").frame, (Rectangle{1, 2, 3, 4}));
    }
}
