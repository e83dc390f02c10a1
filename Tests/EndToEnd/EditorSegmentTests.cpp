// The editor's option segments: their titles, the number that each stores, and on which panel.
#include "Tests/EndToEnd/EditorScenario.hpp"

namespace {

struct Options {
    const char* control;
    const char* action;
    std::vector<std::string> segments;
    int first;
    /// The key by the panel: time, date, widgets; nothing where the panel has no such setting.
    const char* keys[3];
    int segment;
};

const Options options[] = {
    {"_segmentAlign", "alignValueChanged:", {"text.alignleft", "text.aligncenter", "text.alignright"}, 1,
        {"alignTime", "alignDate", nullptr}, positionSegment},
    {"_segmentStyle", "styleValueChanged:", {"Uppercase", "Lowercase", "Capitalized", "None"}, 1,
        {nullptr, "styleDate", nullptr}, dateOptionSegment},
    {"_segmentAlt", "altValueChanged:", {"Hebrew", "Chinese", "Islamic", "Buddhist"}, 1,
        {nullptr, "alternateOption", nullptr}, dateOptionSegment},
    {"_segmentWidget1", "widget1ValueChanged:", {"1 x 1", "1 x 2"}, 0, {nullptr, nullptr, "highLowOption"},
        widgetOptionSegment},
    {"_segmentWidget2", "widget2ValueChanged:", {"Sunrise", "Sunset", "Alarm", "Event"}, 1,
        {nullptr, nullptr, "sunOption"}, widgetOptionSegment},
    {"_segmentWidget3", "widget3ValueChanged:", {"Percentage  1 x 1", "Phone 1 x 1", "1 x 2"}, 1,
        {nullptr, nullptr, "battOption"}, widgetOptionSegment},
};

void PrintTo(const Options& row, std::ostream* stream)
{
    *stream << row.control;
}

class EditorSegments : public ::testing::TestWithParam<Options> { };

/// What the option stores on a panel for each of its segments.
void expectStored(Phone& phone, const Options& row, const char* key, int index)
{
    const int value = row.first + index;
    Journal expected;
    if (key)
        expected.push_back("set " + std::string(key) + " = " + std::to_string(value));
    expected.push_back("sound 1104");
    phone.setControl(row.control, index);
    EXPECT_EQ(takeJournal(phone), expected) << row.control << index;
    EXPECT_TRUE(refreshes(phone)) << row.control << index;
    phone.takeLog();
    if (key) {
        EXPECT_TRUE(phone.settings().at(key).is_number());
        EXPECT_EQ(phone.settings().at(key), value);
    }
}

}

TEST_P(EditorSegments, StoreTheirNumberOnThePanelsThatHaveTheOption)
{
    const Options& row = GetParam();
    auto phone = editing();
    EXPECT_EQ(phone.segments(row.control).segments, row.segments);
    for (int panel = 0; panel < 3; ++panel) {
        choose(phone, editorTabs[panel], 0);
        const Json before = phone.settings();
        for (int index = static_cast<int>(row.segments.size()) - 1; index >= 0; --index)
            expectStored(phone, row, row.keys[panel], index);
        Json after = phone.settings();
        Json expected = before;
        if (row.keys[panel])
            expected[row.keys[panel]] = row.first;
        EXPECT_EQ(after, expected) << "no other setting changes on panel " << panel;
    }
}

TEST_P(EditorSegments, NoneSelectedDoesNothingAtAll)
{
    const Options& row = GetParam();
    auto phone = editing();
    for (const EditorTab& tab : editorTabs) {
        choose(phone, tab, 0);
        phone.send({{"id", row.control}}, "setSelectedSegmentIndex:", {-1});
        phone.send(coverSheet, row.action, {{{"id", row.control}}});
        EXPECT_EQ(takeJournal(phone), Journal{});
        EXPECT_FALSE(refreshes(phone));
    }
}

TEST_P(EditorSegments, OutsideEditModeTheyOnlyRedrawAndClick)
{
    const Options& row = GetParam();
    auto phone = editing();
    const Json before = phone.settings();
    phone.tap("_done");
    phone.takeLog();
    phone.setControl(row.control, 1);
    EXPECT_EQ(takeJournal(phone), Journal{"sound 1104"});
    EXPECT_EQ(phone.settings(), before);
}

TEST_P(EditorSegments, ShowWhatIsStored)
{
    const Options& row = GetParam();
    const int panel = row.keys[0] ? 0 : row.keys[1] ? 1 : 2;
    const int last = static_cast<int>(row.segments.size()) - 1;
    const Json stored[] = {std::to_string(row.first), row.first + last, row.first + last + 1, row.first - 1, "first"};
    const int none = row.first == 0 ? 0 : -1;
    const int shown[] = {0, last, -1, -1, none};
    for (int i = 0; i < 5; ++i) {
        auto phone = editing(editorPhone({{row.keys[panel], stored[i]}}));
        choose(phone, editorTabs[panel], 0);
        EXPECT_EQ(phone.segments(row.control).selected, shown[i]) << stored[i];
    }
}

TEST_P(EditorSegments, AFingerChooses)
{
    const Options& row = GetParam();
    const int panel = row.keys[0] ? 0 : row.keys[1] ? 1 : 2;
    auto phone = editing();
    phone.tap(editorTabs[panel].button);
    phone.setControl("_segmentedControl", row.segment);
    const auto frame = phone.view(row.control).frame, origin = phone.view("_optionView").frame;
    ASSERT_TRUE(phone.view(row.control).onScreen);
    const double left = origin[0] + frame[0], y = origin[1] + frame[1] + frame[3] / 2;
    phone.setControl(row.control, 1);
    phone.tapAt(left + 15, y);
    EXPECT_EQ(phone.settings().at(row.keys[panel]), row.first);
    phone.tapAt(left + frame[2] - 15, y);
    EXPECT_EQ(phone.settings().at(row.keys[panel]), row.first + static_cast<int>(row.segments.size()) - 1);
}

INSTANTIATE_TEST_SUITE_P(Each, EditorSegments, testing::ValuesIn(options),
    [](const auto& row) { return std::string(row.param.control + 1); });

TEST(EditorMainSegments, EachShowsItsOwnControls)
{
    struct {
        const EditorTab* tab;
        int segment;
        std::vector<std::string> shown;
    } rows[] = {
        {&timeTab, 0,
            {"_alertOpen", "_pickerView1", "_stepperButton", "_stepperLabel", "_stepperLabel2", "_stepperView"}},
        {&timeTab, 1,
            {"_alphaCheckBoard", "_alphaView", "_colorWheel1", "_colorWheel2", "_colorWheel3", "_colorWheel4",
                "_colorWheel5", "_showWell", "_sliderAlpha"}},
        {&timeTab, 2, {"_alignLabel", "_segmentAlign", "_sliderLabelX", "_sliderLabelY", "_sliderX", "_sliderY"}},
        {&dateTab, 3, {"_pickerView2", "_segmentAlt", "_segmentStyle"}},
        {&widgetTab, 0, {"_segmentWidget1", "_segmentWidget2", "_segmentWidget3", "_widget1", "_widget2", "_widget3"}},
        {&widgetTab, 1, {"_colorWheel1", "_colorWheel2", "_colorWheel3", "_colorWheel4", "_colorWheel5", "_showWell"}},
        {&widgetTab, 2, {"_sliderLabelX", "_sliderLabelY", "_sliderX", "_sliderY"}},
    };
    // The wells have the colours of a wallpaper.
    auto phone = editing(eveningPhone());
    for (auto& row : rows) {
        choose(phone, *row.tab, row.segment);
        std::vector<std::string> shown;
        for (const Support::View& view : Support::View(phone.call("view.tree", {{"id", "_optionView"}})).children) {
            if (!view.hidden)
                shown.push_back(view.id);
        }
        std::sort(shown.begin(), shown.end());
        row.shown.push_back("_segmentedControl");
        std::sort(row.shown.begin(), row.shown.end());
        EXPECT_EQ(shown, row.shown) << row.tab->button << row.segment;
    }
}
