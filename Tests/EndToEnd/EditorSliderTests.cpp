// The editor's sliders and the stepper of the font size: what they show, when they store, and what follows.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

struct Offset {
    const EditorTab* tab;
    const char* x;
    const char* y;
};

const Offset offsets[] = {{&timeTab, "XtimeLabel", "YtimeLabel"}, {&dateTab, "XdateLabel", "YdateLabel"},
    {&widgetTab, "XwidgetView", "YwidgetView"}};

std::string set(const std::string& key, const std::string& value)
{
    return "set " + key + " = \"" + value + "\"";
}

const std::string click = "sound 1104";
const std::string announced = "post " + settingsNotification;

}

TEST(EditorSliders, HaveTheirRanges)
{
    auto phone = editing();
    struct {
        const char* id;
        double minimum, maximum;
    } rows[] = {{"_sliderX", -100, 100}, {"_sliderY", -200, 200}, {"_sliderAlpha", 0, 1}, {"_stepperView", 1, 150}};
    for (const auto& row : rows) {
        EXPECT_EQ(phone.range(row.id).minimum, row.minimum) << row.id;
        EXPECT_EQ(phone.range(row.id).maximum, row.maximum) << row.id;
    }
    EXPECT_EQ(phone.range("_stepperView").step, 1);
}

TEST(EditorSliders, AnOffsetIsStoredOnceAtReleaseAndAnnounced)
{
    for (const Offset& row : offsets) {
        auto phone = editing();
        choose(phone, *row.tab, positionSegment);
        for (auto [slider, label, key] :
            {std::tuple{"_sliderX", "_sliderLabelX", row.x}, {"_sliderY", "_sliderLabelY", row.y}}) {
            for (auto [value, shown] :
                {std::pair{0.2, "0"}, {12.5, "12"}, {37.6, "38"}, {-0.4, "-0"}, {-37.6, "-38"}}) {
                phone.trackControl(slider, value);
                EXPECT_EQ(phone.label(label).text, shown);
                EXPECT_EQ(takeJournal(phone), Journal{click}) << "the finger is still on it";
            }
            phone.setControl(slider, 37.6);
            EXPECT_EQ(phone.label(label).text, "38");
            EXPECT_EQ(takeJournal(phone), (Journal{click, set(key, "37.599998"), announced})) << key;
            EXPECT_TRUE(refreshes(phone)) << key;
            EXPECT_EQ(phone.settings().at(key), "37.599998");
            EXPECT_EQ(phone.bound(key), "37.599998");
        }
    }
}

TEST(EditorSliders, AFingerDragsIt)
{
    auto phone = editing();
    choose(phone, timeTab, positionSegment);
    const auto panel = phone.view("_optionView").frame, slider = phone.view("_sliderX").frame;
    const double x = panel[0] + slider[0] + slider[2] / 2, y = panel[1] + slider[1] + slider[3] / 2;
    phone.down(x, y);
    int moves = 0;
    for (double by = 4; by <= 40; by += 4, ++moves)
        phone.move(x + by, y);
    const Journal onTheWay = takeJournal(phone);
    EXPECT_EQ(std::count(onTheWay.begin(), onTheWay.end(), click), moves);
    EXPECT_EQ(static_cast<int>(onTheWay.size()), moves) << "nothing but clicks";
    const double value = phone.range("_sliderX").value;
    EXPECT_GT(value, 10);
    phone.up(x + 40, y);
    const Journal atRelease = takeJournal(phone);
    ASSERT_EQ(atRelease.size(), 3u);
    EXPECT_EQ(atRelease[2], announced);
    const std::string stored = phone.settings().at("XtimeLabel");
    EXPECT_EQ(stored.size() - stored.find('.'), 7u) << stored << " has six decimals";
    EXPECT_NEAR(std::stod(stored), value, 1e-5);
}

TEST(EditorSliders, TheClockMovesWithItsOffset)
{
    auto phone = editing();
    choose(phone, timeTab, positionSegment);
    const auto before = phone.view("_timeLabel").frame;
    phone.setControl("_sliderX", 25);
    phone.settle(1);
    EXPECT_NEAR(phone.view("_timeLabel").frame[0] - before[0], 25, 1e-3);
}

TEST(EditorSliders, OpacityIsStoredWithoutANotification)
{
    auto phone = editing();
    for (auto [tab, key] : {std::pair{&timeTab, "alphaTime"}, {&dateTab, "alphaDate"}}) {
        choose(phone, *tab, colourSegment);
        phone.trackControl("_sliderAlpha", 0.3);
        EXPECT_EQ(takeJournal(phone), Journal{click});
        phone.setControl("_sliderAlpha", 0.25);
        EXPECT_EQ(takeJournal(phone), (Journal{click, set(key, "0.250000")}));
        EXPECT_TRUE(refreshes(phone));
    }
    EXPECT_NEAR(phone.view("_timeLabel").alpha, 0.25, 1e-6);
    choose(phone, widgetTab, colourSegment);
    const Json before = phone.settings();
    phone.setControl("_sliderAlpha", 0.5);
    EXPECT_EQ(takeJournal(phone), Journal{click}) << "widgets have none";
    EXPECT_EQ(phone.settings(), before);
}

TEST(EditorSliders, ShowWhatIsStoredWhenAPanelOpens)
{
    auto phone = editing(
        editorPhone({{"XtimeLabel", "12"}, {"YtimeLabel", "-34.500000"}, {"XdateLabel", "5"}, {"alphaTime", "0.4"},
            {"alphaDate", "0.6"}, {"sizeTimeLabel", "77"}, {"sizeDateLabel", "21"}, {"YwidgetView", "nonsense"}}));
    EXPECT_EQ(phone.range("_sliderX").value, 12);
    EXPECT_EQ(phone.label("_sliderLabelX").text, "12");
    EXPECT_EQ(phone.range("_sliderY").value, -34.5);
    EXPECT_EQ(phone.label("_sliderLabelY").text, "-34");
    EXPECT_NEAR(phone.range("_sliderAlpha").value, 0.4, 1e-6);
    EXPECT_EQ(phone.range("_stepperView").value, 77);
    phone.tap("_dateButton");
    EXPECT_EQ(phone.range("_sliderX").value, 5);
    EXPECT_NEAR(phone.range("_sliderAlpha").value, 0.6, 1e-6);
    EXPECT_EQ(phone.range("_stepperView").value, 21);
    phone.tap("_widgetButton");
    EXPECT_EQ(phone.range("_sliderY").value, 0);
}

TEST(EditorSliders, OutsideEditModeTheyOnlyClickAndShow)
{
    auto phone = editing();
    const Json before = phone.settings();
    phone.tap("_done");
    phone.takeLog();
    phone.setControl("_sliderX", 9);
    phone.setControl("_sliderAlpha", 0.9);
    phone.setControl("_stepperView", 9);
    EXPECT_EQ(phone.label("_sliderLabelX").text, "9");
    EXPECT_EQ(phone.label("_stepperLabel").text, "9");
    EXPECT_EQ(takeJournal(phone), Journal(3, click));
    EXPECT_EQ(phone.settings(), before);
}

TEST(EditorStepper, EachTapStoresTheSizeAtOnceAndWaitsToBeApplied)
{
    for (auto [tab, key, label] :
        {std::tuple{&timeTab, "sizeTimeLabel", "_timeLabel"}, {&dateTab, "sizeDateLabel", "_dateLabel"}}) {
        auto phone = editing(
            editorPhone({{"customFontPickerTime", "Lato-Thin"}, {"sizeTimeLabel", "90"}, {"sizeDateLabel", "90"}}));
        choose(phone, *tab, fontSegment);
        const double before = phone.label(label).fontSize;
        const auto panel = phone.view("_optionView").frame, stepper = phone.view("_stepperView").frame;
        phone.tapAt(panel[0] + stepper[0] + stepper[2] * 0.75, panel[1] + stepper[1] + stepper[3] / 2);
        EXPECT_EQ(phone.label("_stepperLabel").text, "91");
        EXPECT_EQ(takeJournal(phone), (Journal{click, set(key, "91"), announced}));
        EXPECT_EQ(phone.bound(key), "91");
        phone.settle(1);
        EXPECT_EQ(phone.label(label).fontSize, before) << "not before it is applied";
        phone.tap("_stepperButton");
        EXPECT_EQ(takeJournal(phone), Journal{"sound 1519"});
        phone.settle(1);
        EXPECT_EQ(phone.label(label).fontSize, 91);
    }
}

TEST(EditorStepper, ItEndsAtOneAndAtAHundredAndFifty)
{
    struct {
        const char* stored;
        double side;
        const char* after;
    } rows[] = {{"150", 0.75, nullptr}, {"149", 0.75, "150"}, {"1", 0.25, nullptr}, {"2", 0.25, "1"}};
    for (const auto& row : rows) {
        auto phone = editing(editorPhone({{"sizeTimeLabel", row.stored}}));
        const auto panel = phone.view("_optionView").frame, stepper = phone.view("_stepperView").frame;
        phone.tapAt(panel[0] + stepper[0] + stepper[2] * row.side, panel[1] + stepper[1] + stepper[3] / 2);
        EXPECT_EQ(phone.settings().at("sizeTimeLabel"), row.after ? row.after : row.stored);
    }
}

TEST(EditorStepper, ASizeBeyondTheRangeIsHeldWithinIt)
{
    for (auto [stored, shown] : {std::pair{"4000", 150}, {"-7", 1}, {"0", 1}, {"big", 1}, {"", 1}}) {
        auto phone = editing(editorPhone({{"sizeTimeLabel", stored}}));
        EXPECT_EQ(phone.range("_stepperView").value, shown) << stored;
    }
}

TEST(EditorStepper, OnTheWidgetPanelItStoresNothing)
{
    auto phone = editing();
    choose(phone, widgetTab, colourSegment);
    const Json before = phone.settings();
    phone.setControl("_stepperView", 33);
    EXPECT_EQ(takeJournal(phone), Journal{click});
    EXPECT_EQ(phone.settings(), before);
}

TEST(EditorStepper, HalfASizeIsCutOff)
{
    auto phone = editing();
    phone.setControl("_stepperView", 41.9);
    EXPECT_EQ(phone.label("_stepperLabel").text, "41");
    EXPECT_EQ(phone.settings().at("sizeTimeLabel"), "41");
}
