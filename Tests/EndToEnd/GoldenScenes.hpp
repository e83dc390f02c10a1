// The golden pictures: what they are called and how their scenes are reached, an entry a scene.
#pragma once

#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/EndToEnd/GoldenPicture.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

/// A look of the lock screen: its settings, its phone's state and the options it is drawn with.
struct GoldenScene {
    const char* name;
    const char* settings;
    /// On top of the weather, alarm and events that all scenes share.
    const char* device;
    std::vector<std::string> options;
};

inline const GoldenScene goldenScenes[] = {
    {"one-cell-percentage", R"({"highLowOption": "0", "battOption": "1"})", "{}", {}},
    {"one-cell-phone", R"({"highLowOption": "0", "battOption": "2", "sunOption": "3"})", "{}", {}},
    {"one-cell-bar", R"({"highLowOption": "0", "battOption": "3", "sunOption": "2"})", "{}", {}},
    {"two-cells-percentage", R"({"battOption": "1", "sunOption": "4", "dateOption": "7"})", "{}", {}},
    {"two-cells-phone", R"({"battOption": "2", "dateOption": "6", "twentyFour": true, "sunOption": "3"})", "{}", {}},
    {"two-cells-bar", R"({"battOption": "3", "dateOption": "1"})", "{}", {}},
    {"charging", R"({"battOption": "1"})", R"({"battery": {"level": 0.42, "state": "charging"}})", {}},
    {"charging-phone", R"({"battOption": "2"})", R"({"battery": {"level": 0.77, "state": "charging"}})", {}},
    {"low-power", R"({"battOption": "3", "shadowText": true})", R"({"battery": {"level": 0.18, "lowPower": true}})",
        {}},
    {"own-colours", R"({"dateOption": "3", "dateFormat": "EEE ", "colourIconWeather": false})", "{}", {}},
    {"dark", R"({"dateOption": "5"})", "{}", {"--style", "dark"}},
    {"timer", R"({"battOption": "2"})", R"({"timer": 754})", {}},
    {"narrow", R"({"highLowOption": "0", "battOption": "3", "sunOption": "4"})", "{}", {"--screen", "320x693@1"}},
    {"tablet", R"({"highLowOption": "1", "battOption": "1"})", "{}", {"--screen", "1024x768@1"}},
    {"right-to-left", R"({"sunOption": "4", "dateOption": "4", "sizeWidget": "1.1"})",
        R"({"events": [{"title": "רופא שיניים", "start": "2020-11-16T09:30:00"}], "weather": {"temperature": "21°",
            "high": "24°", "low": "15°", "conditions": "מעונן חלקית", "location": "חיפה", "sunrise": "6:12",
            "sunset": "16:41"}})",
        {"--locale", "he_IL", "--language", "he", "--time-zone", "Asia/Jerusalem"}},
};

/// What of the screen a picture of the editor keeps.
enum class EditorPart { panel, screen };

struct EditorPlace {
    const char* name;
    void (*go)(Phone&);
    EditorPart part = EditorPart::panel;
    bool isNarrowToo = false; // on a small screen as well, in the light style
};

template <const EditorTab& tab, int segment>
void choosePanel(Phone& phone)
{
    choose(phone, tab, segment);
}

inline void openNotice(Phone& phone)
{
    phone.tap("_alertOpen");
}

inline void openSheet(Phone& phone)
{
    choose(phone, timeTab, colourSegment);
    phone.tap("_colorWheel3");
    phone.tap("_showWell");
    phone.settle(1);
}

inline void openSystemsSheet(Phone& phone)
{
    openSheet(phone);
    phone.tap("colorWell");
    phone.settle(1);
}

/// Each is drawn in the light and in the dark style.
inline const EditorPlace editorPlaces[] = {
    {"time-font", choosePanel<timeTab, fontSegment>, EditorPart::panel, true},
    {"time-colour", choosePanel<timeTab, colourSegment>},
    {"time-position", choosePanel<timeTab, positionSegment>},
    {"date-font", choosePanel<dateTab, fontSegment>},
    {"date-colour", choosePanel<dateTab, colourSegment>},
    {"date-position", choosePanel<dateTab, positionSegment>},
    {"date-option", choosePanel<dateTab, dateOptionSegment>, EditorPart::panel, true},
    {"widget-option", choosePanel<widgetTab, widgetOptionSegment>, EditorPart::panel, true},
    {"widget-colour", choosePanel<widgetTab, colourSegment>},
    {"widget-position", choosePanel<widgetTab, positionSegment>},
    {"notice", openNotice, EditorPart::panel, true},
    {"sheet", openSheet},
    {"open", [](Phone&) {}, EditorPart::screen},
    {"system-sheet", openSystemsSheet, EditorPart::screen},
};

inline constexpr const char* goldenDevice = R"({
    "weather": {"temperature": "21°", "high": "24°", "low": "15°", "conditions": "Partly Cloudy", "location": "Haifa",
        "sunrise": "6:12", "sunset": "16:41"},
    "battery": {"level": 0.87}, "alarm": "2020-11-16T06:30:00",
    "events": [{"title": "Dentist", "start": "2020-11-16T09:30:00"}]})";

/// Draws the scene, with more options than its own.
inline void drawGolden(const GoldenScene& scene, const fs::path& output, const std::vector<std::string>& options = {})
{
    const Support::TemporaryFolder folder;
    Json device = Json::parse(goldenDevice);
    device.merge_patch(Json::parse(scene.device));
    device["weather"]["image"] = goldenFolder / "weather.png";
    std::vector<std::string> arguments{"render", "--time", "2020-11-15T21:41:00", "--settings",
        folder.put("settings.json", scene.settings), "--device", folder.put("device.json", device.dump()),
        "--wallpaper", goldenFolder / "wallpaper.jpg", "-o", output};
    arguments.insert(arguments.end(), scene.options.begin(), scene.options.end());
    arguments.insert(arguments.end(), options.begin(), options.end());
    if (std::find(arguments.begin(), arguments.end(), "--screen") == arguments.end())
        arguments.insert(arguments.end(), {"--screen", "375x812@2"});
    const auto finished = Support::runProgram(arguments);
    ASSERT_EQ(finished.status, 0) << finished.errors;
}

struct EditorScene {
    std::string name;
    EditorPlace place;
    std::string style;
    double width = 375, height = 812;
};

inline std::vector<EditorScene> editorScenes(EditorPart part)
{
    std::vector<EditorScene> scenes;
    for (const EditorPlace& place : editorPlaces) {
        if (place.part != part)
            continue;
        const std::string name = place.name;
        for (const char* style : {"light", "dark"})
            scenes.push_back({"editor-" + name + "-" + style, place, style});
        if (place.isNarrowToo)
            scenes.push_back({"editor-narrow-" + name, place, "light", 320, 568});
    }
    return scenes;
}

inline void drawGolden(const EditorScene& scene, const fs::path& output)
{
    const Json settings = {{"customFontPickerTime", "Quicksand-Medium"}, {"useCustomFont2", true},
        {"customFontPicker", "Lato-Medium"}, {"dateOption", "2"}, {"XtimeLabel", "12"}, {"YtimeLabel", "-30"},
        {"styleDate", "1"}, {"alternateOption", "2"}};
    const Json device = Json::parse(goldenDevice);
    auto phone = editing(editorPhone(settings)
                             .colours({{"colourTime", "#FFD27A"}, {"colourDate", "#B8F0C8"}})
                             .wallpaper(goldenFolder / "wallpaper.jpg")
                             .weather(device.at("weather"))
                             .battery(device.at("battery"))
                             .alarm(device.at("alarm"))
                             .screen(scene.width, scene.height, 1)
                             .style(scene.style));
    scene.place.go(phone);
    phone.settle(2);
    phone.call("screen.capture", {{"path", output}});
}

inline void PrintTo(const GoldenScene& scene, std::ostream* stream)
{
    *stream << scene.name;
}

inline void PrintTo(const EditorScene& scene, std::ostream* stream)
{
    *stream << scene.name;
}
