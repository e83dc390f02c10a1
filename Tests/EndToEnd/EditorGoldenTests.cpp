// Pictures of the editor: each panel with each of its segments, the notice, the colour sheet and the system's.
#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/EndToEnd/GoldenPicture.hpp"

namespace {

struct Screen {
    const char* name;
    double width, height;
};

constexpr Screen tall{"", 375, 812}, narrow{"narrow-", 320, 568};

struct EditorScene {
    std::string name;
    Screen screen;
    std::string style;
    void (*go)(Phone&);
};

void PrintTo(const EditorScene& scene, std::ostream* stream)
{
    *stream << scene.name;
}

template <const EditorTab& tab, int segment>
void choosePanel(Phone& phone)
{
    choose(phone, tab, segment);
}

void openNotice(Phone& phone)
{
    phone.tap("_alertOpen");
}

void openSheet(Phone& phone)
{
    choose(phone, timeTab, colourSegment);
    phone.tap("_colorWheel3");
    phone.tap("_showWell");
    phone.settle(1);
}

void openSystemsSheet(Phone& phone)
{
    openSheet(phone);
    phone.tap("colorWell");
    phone.settle(1);
}

struct Place {
    const char* name;
    void (*go)(Phone&);
};

const Place places[] = {
    {"time-font", choosePanel<timeTab, fontSegment>},
    {"time-colour", choosePanel<timeTab, colourSegment>},
    {"time-position", choosePanel<timeTab, positionSegment>},
    {"date-font", choosePanel<dateTab, fontSegment>},
    {"date-colour", choosePanel<dateTab, colourSegment>},
    {"date-position", choosePanel<dateTab, positionSegment>},
    {"date-option", choosePanel<dateTab, dateOptionSegment>},
    {"widget-option", choosePanel<widgetTab, widgetOptionSegment>},
    {"widget-colour", choosePanel<widgetTab, colourSegment>},
    {"widget-position", choosePanel<widgetTab, positionSegment>},
    {"notice", openNotice},
    {"sheet", openSheet},
};

std::vector<EditorScene> scenes()
{
    std::vector<EditorScene> all;
    for (const Place& place : places) {
        for (const char* style : {"light", "dark"})
            all.push_back({std::string("editor-") + place.name + "-" + style, tall, style, place.go});
    }
    for (const char* name : {"time-font", "date-option", "widget-option", "notice"}) {
        const auto place = std::find_if(
            std::begin(places), std::end(places), [name](const Place& one) { return std::string(one.name) == name; });
        all.push_back({std::string("editor-narrow-") + name, narrow, "light", place->go});
    }
    return all;
}

const Json settings
    = {{"customFontPickerTime", "Quicksand-Medium"}, {"useCustomFont2", true}, {"customFontPicker", "Lato-Medium"},
        {"dateOption", "2"}, {"XtimeLabel", "12"}, {"YtimeLabel", "-30"}, {"styleDate", "1"}, {"alternateOption", "2"}};
const Json weather = {{"temperature", "21°"}, {"high", "24"}, {"low", "15"}, {"conditions", "Partly Cloudy"},
    {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}};

Phone editingOn(const Screen& screen, const std::string& style)
{
    return editing(editorPhone(settings)
                       .colours({{"colourTime", "#FFD27A"}, {"colourDate", "#B8F0C8"}})
                       .wallpaper(goldenFolder / "wallpaper.jpg")
                       .weather(weather)
                       .battery({{"level", 0.87}})
                       .alarm("2020-11-16T06:30:00")
                       .screen(screen.width, screen.height, 1)
                       .style(style));
}

void capture(Phone& phone, const fs::path& path)
{
    phone.settle(2);
    phone.call("screen.capture", {{"path", path}});
}

class EditorGolden : public testing::TestWithParam<EditorScene> { };

}

TEST_P(EditorGolden, PanelIsAsItWas)
{
    const EditorScene& scene = GetParam();
    auto phone = editingOn(scene.screen, scene.style);
    scene.go(phone);
    const fs::path drawn = newGoldenPicture(scene.name);
    capture(phone, drawn);
    const auto screen = Support::Picture::read(drawn);
    ASSERT_TRUE(screen);
    // The row of buttons, the panel, and a little around them.
    constexpr unsigned aboveBottom = 401, height = 302;
    ASSERT_TRUE(screen->rows(screen->height - aboveBottom, height).write(drawn));
    expectGolden(scene.name, drawn);
}

INSTANTIATE_TEST_SUITE_P(Scenes, EditorGolden, testing::ValuesIn(scenes()),
    [](const auto& scene) { return goldenTestName(scene.param.name); });

class EditorScreenGolden : public testing::TestWithParam<const char*> { };

TEST_P(EditorScreenGolden, ScreenIsAsItWas)
{
    const std::string style = GetParam();
    auto phone = editingOn(tall, style);
    const std::string open = "editor-open-" + style, system = "editor-system-sheet-" + style;
    capture(phone, newGoldenPicture(open));
    expectGolden(open, newGoldenPicture(open));
    openSystemsSheet(phone);
    capture(phone, newGoldenPicture(system));
    expectGolden(system, newGoldenPicture(system));
}

INSTANTIATE_TEST_SUITE_P(Scenes, EditorScreenGolden, testing::Values("light", "dark"),
    [](const auto& style) { return std::string("editor_screen_") + style.param; });
