// The looks of which golden pictures are kept: their settings, their phone's state and the options they are drawn with.
#pragma once

#include "Tests/EndToEnd/GoldenPicture.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <nlohmann/json.hpp>

struct GoldenScene {
    const char* name;
    const char* settings;
    // On top of the weather, alarm and events that all scenes share.
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

inline constexpr const char* goldenDevice = R"({
    "weather": {"temperature": "21°", "high": "24°", "low": "15°", "conditions": "Partly Cloudy", "location": "Haifa",
        "sunrise": "6:12", "sunset": "16:41"},
    "battery": {"level": 0.87}, "alarm": "2020-11-16T06:30:00",
    "events": [{"title": "Dentist", "start": "2020-11-16T09:30:00"}]})";

/// Draws the scene, with more options than its own.
inline void drawGolden(const GoldenScene& scene, const fs::path& output, const std::vector<std::string>& options = {})
{
    using Json = nlohmann::json;
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

inline void PrintTo(const GoldenScene& scene, std::ostream* stream)
{
    *stream << scene.name;
}
