// The editor's two wheels: all fonts of the phone, and what the date line can show.
#include "Tests/EndToEnd/EditorScenario.hpp"

#include <cstdlib>
#include <set>

namespace {

const Json weather = {{"temperature", "21°"}, {"high", "24"}, {"low", "15"}, {"conditions", "Partly Cloudy"},
    {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}};

/// The labels of the rows that can be seen, the chosen one in the middle.
std::vector<Support::Label> rowsOf(Phone& phone, const std::string& picker)
{
    std::vector<Support::Label> rows;
    const Json tree = phone.call("view.tree", {{"id", picker}});
    for (const Json& child : tree.at("children")) {
        if (child.at("class") == "UILabel")
            rows.emplace_back(child);
    }
    return rows;
}

Support::Label chosenRow(Phone& phone, const std::string& picker)
{
    const double middle = phone.view(picker).bounds[3] / 2;
    auto rows = rowsOf(phone, picker);
    EXPECT_FALSE(rows.empty());
    return *std::min_element(rows.begin(), rows.end(), [middle](const auto& one, const auto& other) {
        return std::abs(one.centreY() - middle) < std::abs(other.centreY() - middle);
    });
}

/// After a refresh.
void expectFont(Phone& phone, const std::string& label, const std::string& name)
{
    refresh(phone);
    EXPECT_EQ(phone.label(label).fontName, name) << label;
}

long rowsReported(Phone& phone, const Json& picker)
{
    return phone.send(coverSheet, "pickerView:numberOfRowsInComponent:", {picker, 0});
}

}

TEST(FontPicker, HasARowForEachFontThatIsWrittenInThatFont)
{
    auto phone = editing();
    const Json fonts = phone.global("availableFonts");
    ASSERT_GT(fonts.size(), 20u);
    EXPECT_EQ(phone.picker("_pickerView1").rows, static_cast<int>(fonts.size()));
    std::set<std::string> seen;
    for (std::size_t row = 0; row < fonts.size(); ++row) {
        phone.setControl("_pickerView1", row);
        const auto label = chosenRow(phone, "_pickerView1");
        EXPECT_EQ(label.text, fonts[row]);
        EXPECT_EQ(label.fontName, fonts[row]);
        EXPECT_TRUE(seen.insert(label.text).second) << label.text;
    }
}

TEST(FontPicker, BothWheelsHaveOneColumnAndOthersHaveNoRow)
{
    auto phone = editing();
    for (const char* picker : {"_pickerView1", "_pickerView2"})
        EXPECT_EQ(phone.send(coverSheet, "numberOfComponentsInPickerView:", {{{"id", picker}}}), 1);
    EXPECT_EQ(rowsReported(phone, {{"id", "_pickerView2"}}), 8);
    phone.call("objc.new", {{"class", "UIPickerView"}, {"name", "other"}});
    EXPECT_EQ(rowsReported(phone, {{"named", "other"}}), 0);
    EXPECT_EQ(rowsReported(phone, nullptr), 0);
}

TEST(FontPicker, EachRequestForRowsGathersTheFontsAnew)
{
    auto phone = editing();
    const auto before = phone.global("availableFonts").size();
    EXPECT_EQ(rowsReported(phone, {{"id", "_pickerView1"}}), static_cast<long>(before));
    phone.send({{"id", "_stepperLabel"}}, "setText:", Json::array({"anything"}));
    EXPECT_EQ(phone.global("availableFonts").size(), before);
}

TEST(FontPicker, APickedFontIsThatOfThePanel)
{
    for (auto [tab, key, other] : {std::tuple{&timeTab, "customFontPickerTime", "customFontPicker"},
             {&dateTab, "customFontPicker", "customFontPickerTime"}}) {
        auto phone = editing(editorPhone({{"useCustomFont2", true}}));
        choose(phone, *tab, fontSegment);
        const Json fonts = phone.global("availableFonts");
        for (int time = 0; time < 2; ++time) {
            phone.setControl("_pickerView1", 3);
            EXPECT_EQ(takeJournal(phone), Journal{"set " + std::string(key) + " = " + fonts[3].dump()});
            EXPECT_TRUE(refreshes(phone)) << "and so each time";
            phone.takeLog();
        }
        EXPECT_FALSE(phone.settings().contains(other));
        EXPECT_EQ(phone.label(tab == &timeTab ? "_timeLabel" : "_dateLabel").fontName, fonts[3]);
    }
}

TEST(FontPicker, AFingerTurnsTheWheel)
{
    auto phone = editing();
    const auto panel = phone.view("_optionView").frame, wheel = phone.view("_pickerView1").frame;
    const double x = panel[0] + wheel[0] + wheel[2] / 2, y = panel[1] + wheel[1] + wheel[3] / 2;
    phone.drag({x, y}, {x, y - 64}, 0.6);
    phone.settle(3);
    const int row = phone.picker("_pickerView1").selected;
    EXPECT_GT(row, 0);
    EXPECT_EQ(phone.settings().at("customFontPickerTime"), phone.global("availableFonts").at(row));
}

TEST(FontPicker, OnTheWidgetPanelAndOutsideEditModeItStoresNothing)
{
    auto phone = editing();
    const Json before = phone.settings();
    choose(phone, widgetTab, widgetOptionSegment);
    phone.setControl("_pickerView1", 2);
    phone.tap("_done");
    phone.setControl("_pickerView1", 3);
    EXPECT_EQ(phone.settings(), before);
}

TEST(FontPicker, StandsAtTheStoredFontWhenItsPanelOpens)
{
    auto phone
        = editing(editorPhone({{"customFontPickerTime", "Quicksand-Medium"}, {"customFontPicker", "Lato-Thin"}}));
    EXPECT_EQ(chosenRow(phone, "_pickerView1").text, "Quicksand-Medium");
    phone.tap("_dateButton");
    EXPECT_EQ(chosenRow(phone, "_pickerView1").text, "Lato-Thin");
    auto other = editing(editorPhone({{"customFontPickerTime", "NoSuchFont"}}));
    EXPECT_EQ(other.picker("_pickerView1").selected, 0);
}

TEST(FontPicker, OpeningTheEditorKeepsTheFontOfTheTimeAndStandsAtIt)
{
    const std::string names[] = {"Lato-Thin", "Roboto-Black", "Quicksand-Medium", "RobotoCondensed-Light"};
    for (int code = 1; code <= 4; ++code) {
        auto phone = editing(editorPhone({{"customFont", std::to_string(code)}}));
        const std::string& name = names[code - 1];
        EXPECT_EQ(chosenRow(phone, "_pickerView1").text, name);
        expectFont(phone, "_timeLabel", name);
        EXPECT_EQ(phone.settings().at("customFont"), "5");
        EXPECT_FALSE(phone.settings().contains("customFontPickerTime"));
        phone.set({{"sizeTimeLabel", "50"}});
        pressDone(phone);
        phone.call("phone.lock");
        phone.settle();
        phone.call("phone.wake");
        expectFont(phone, "_timeLabel", name);
        EXPECT_EQ(phone.label("_timeLabel").fontSize, 50);
        openEditor(phone);
        EXPECT_EQ(chosenRow(phone, "_pickerView1").text, name);
    }
}

TEST(FontPicker, TheDateKeepsItsFontUntilOneIsPicked)
{
    auto phone = editing();
    phone.set({{"useCustomFont2", true}});
    expectFont(phone, "_dateLabel", "Lato-Medium");
    expectFont(phone, "_timerLabel", "Lato-Medium");
    choose(phone, dateTab, fontSegment);
    EXPECT_EQ(chosenRow(phone, "_pickerView1").text, "Lato-Medium");
    phone.setControl("_pickerView1", 3);
    const std::string picked = phone.global("availableFonts").at(3);
    expectFont(phone, "_dateLabel", picked);
    expectFont(phone, "_timeLabel", "Lato-Thin");
    choose(phone, timeTab, fontSegment);
    EXPECT_EQ(chosenRow(phone, "_pickerView1").text, "Lato-Thin");
}

TEST(FontPicker, AfterAStartWithNoFontPickedTheBuiltInOnesStand)
{
    auto phone = editing(editorPhone({{"customFont", "5"}, {"useCustomFont2", true}}));
    expectFont(phone, "_timeLabel", "Lato-Thin");
    expectFont(phone, "_dateLabel", "Lato-Medium");
    EXPECT_EQ(chosenRow(phone, "_pickerView1").text, "Lato-Thin");
}

TEST(FontPicker, AFontThatIsGoneLeavesItsRowInTheSystemFont)
{
    if (std::getenv("LYR_PROGRAM"))
        GTEST_SKIP() << "the other extension is a library of this machine, which an emulated phone cannot load";
    // Another extension that lists a font which nobody has.
    auto phone = editing(editorPhone()
                             .installed({"AFont"})
                             .file("/Library/MobileSubstrate/DynamicLibraries/AFont.dylib", LYR_UNKNOWN_FONT));
    const Json fonts = phone.global("availableFonts");
    const auto found = std::find(fonts.begin(), fonts.end(), "NoSuchFont");
    ASSERT_NE(found, fonts.end());
    const auto row = found - fonts.begin();
    phone.send({{"id", "_pickerView1"}}, "selectRow:inComponent:animated:", {row, 0, false});
    phone.settle(1);
    const auto label = chosenRow(phone, "_pickerView1");
    EXPECT_EQ(label.text, "NoSuchFont");
    EXPECT_EQ(label.fontName.find("Inter"), 0u) << label.fontName;
    const Json before = phone.settings();
    phone.setControl("_pickerView1", row);
    EXPECT_EQ(phone.settings(), before) << "there is nothing to choose";
}

TEST(FontPicker, RowsThatDoNotExistAreNoMatter)
{
    auto phone = editing();
    const Json before = phone.settings();
    for (const char* picker : {"_pickerView1", "_pickerView2"}) {
        for (long row : {-1L, 100000L, -9223372036854775807L, 9223372036854775807L}) {
            const Json arguments = {{{"id", picker}}, row, 0};
            phone.send(coverSheet, "pickerView:didSelectRow:inComponent:", arguments);
            const Json label = phone.send(
                coverSheet, "pickerView:viewForRow:forComponent:reusingView:", {{{"id", picker}}, row, 0, nullptr});
            EXPECT_EQ(label.at("class"), "UILabel");
        }
    }
    EXPECT_EQ(phone.settings(), before);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(DateOptionPicker, EachRowShowsWhatTheDateLineWould)
{
    auto phone = editing(editorPhone({{"dateFormat", "EEEE d"}}).weather(weather));
    choose(phone, dateTab, dateOptionSegment);
    const std::vector<std::string> texts
        = {"Sunday 15", "21°", "H:24 L:15", "Partly Cloudy", "Haifa", " • Alternate Date", "Alarm ", "Event "};
    EXPECT_EQ(phone.picker("_pickerView2").rows, 8);
    for (std::size_t row = 0; row < texts.size(); ++row) {
        phone.setControl("_pickerView2", row);
        const auto label = chosenRow(phone, "_pickerView2");
        std::string shown;
        std::string picture;
        for (const Json& run : label.runs) {
            shown += run.value("text", "");
            picture += run.value("image", "");
        }
        EXPECT_EQ(shown, texts[row]);
        EXPECT_EQ(picture, row == 6 ? "alarm.fill" : row == 7 ? "calendar" : "");
        EXPECT_EQ(label.fontSize, 14);
        EXPECT_EQ(label.fontName.find("Inter"), 0u) << label.fontName;
    }
}

TEST(DateOptionPicker, AChoiceIsStoredAndRedrawnEachTime)
{
    auto phone = editing(editorPhone().weather(weather));
    choose(phone, dateTab, dateOptionSegment);
    for (int row = 0; row < 8; ++row) {
        for (int time = 0; time < 2; ++time) {
            phone.setControl("_pickerView2", row);
            EXPECT_EQ(takeJournal(phone), Journal{"set dateOption = \"" + std::to_string(row) + "\""});
            EXPECT_TRUE(refreshes(phone));
            phone.takeLog();
        }
        EXPECT_EQ(phone.settings().at("dateOption"), std::to_string(row));
    }
}

TEST(DateOptionPicker, TheDateLineGoesFromOneChoiceToTheNextWithNothingBetween)
{
    auto phone = editing(editorPhone({{"dateFormat", "EEEE d"}, {"dateOption", "0"}}).weather(weather));
    choose(phone, dateTab, dateOptionSegment);
    const auto line = [&phone] { return phone.label("_dateLabel").runs; };
    for (int row : {1, 2, 3, 4, 5, 6, 7, 0}) {
        const Json before = line();
        phone.setControl("_pickerView2", row);
        EXPECT_EQ(line(), before) << row;
        phone.advance(0.05);
        EXPECT_EQ(line(), before) << row;
        phone.advance(0.1);
        EXPECT_NE(line(), before) << row;
        EXPECT_EQ(phone.label("_dateLabel").text.find("Sunday 15"), 0u) << row;
    }
}

TEST(DateOptionPicker, AsksForTheWeatherOnlyWhereItShowsSome)
{
    auto phone = editing(editorPhone().weather(weather));
    choose(phone, dateTab, dateOptionSegment);
    for (int row = 0; row < 8; ++row) {
        phone.takeLog();
        phone.send(
            coverSheet, "pickerView:viewForRow:forComponent:reusingView:", {{{"id", "_pickerView2"}}, row, 0, nullptr});
        EXPECT_EQ(phone.takeLog("weatherRefresh").empty(), row == 0 || row > 4) << row;
    }
}

TEST(DateOptionPicker, StandsAtTheStoredOption)
{
    for (auto [stored, row] : {std::pair<Json, int>{"3", 3}, {7, 7}, {"12", 0}, {"-1", 0}, {"none", 0}}) {
        auto phone = editing(editorPhone({{"dateOption", stored}}));
        choose(phone, dateTab, dateOptionSegment);
        EXPECT_EQ(phone.picker("_pickerView2").selected, row) << stored;
    }
}

TEST(DateOptionPicker, WithoutWeatherItsRowsAreEmptyAndCanBeChosen)
{
    auto phone = editing();
    choose(phone, dateTab, dateOptionSegment);
    for (int row = 1; row <= 4; ++row) {
        phone.setControl("_pickerView2", row);
        EXPECT_EQ(phone.settings().at("dateOption"), std::to_string(row));
    }
    EXPECT_EQ(phone.info().at("starts"), 1);
}
