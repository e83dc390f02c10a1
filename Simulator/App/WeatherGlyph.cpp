// Weather libraries word the same weather in many ways; what counts are the beginnings of words.
#include "Simulator/App/WeatherGlyph.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <optional>

namespace Simulator::App {

using Control::Json;
namespace fs = std::filesystem;

namespace {

struct Row {
    const char* beginning;
    const char* glyph;
    bool hasNight = false;
};

/// The stronger weather comes before the weaker: "Snow Showers" are snow, "Rain and Snow" is neither alone.
constexpr std::array rows{
    Row{"thunder", "thunderstorm"},
    Row{"t-storm", "thunderstorm"},
    Row{"lightning", "thunderstorm"},
    Row{"hail", "hail"},
    Row{"sleet", "sleet"},
    Row{"wintry", "sleet"},
    Row{"freezing", "sleet"},
    Row{"ice", "sleet"},
    Row{"rain and snow", "sleet"},
    Row{"snow and rain", "sleet"},
    Row{"snow", "snow"},
    Row{"flurr", "snow"},
    Row{"blizzard", "snow"},
    Row{"shower", "showers", true},
    Row{"drizzle", "drizzle"},
    Row{"rain", "rain"},
    Row{"fog", "fog"},
    Row{"haz", "fog"},
    Row{"mist", "fog"},
    Row{"smok", "fog"},
    Row{"dust", "fog"},
    Row{"sand", "fog"},
    Row{"hurricane", "wind"},
    Row{"tornado", "wind"},
    Row{"storm", "thunderstorm"},
    Row{"wind", "wind"},
    Row{"breez", "wind"},
    Row{"gale", "wind"},
    Row{"overcast", "overcast"},
    Row{"mostly clear", "mostly-clear", true},
    Row{"mostly sunny", "mostly-clear", true},
    Row{"fair", "mostly-clear", true},
    Row{"partly", "partly-cloudy", true},
    Row{"cloud", "cloudy"},
    Row{"clear", "clear", true},
    Row{"sun", "clear", true},
};

constexpr int noon = 12;
constexpr int minutesPerHour = 60;

/// Minutes since midnight of "6:12", "16.41" or "4:41 PM".
std::optional<int> minutesOf(const Json& value)
{
    if (!value.is_string())
        return std::nullopt;
    const std::string& text = value.get_ref<const std::string&>();
    int hour = 0, minute = 0, length = 0;
    if (std::sscanf(text.c_str(), "%2d%*1[:.]%2d%n", &hour, &minute, &length) != 2)
        return std::nullopt;
    const auto follows = [&](const char* letters) { return text.find_first_of(letters, length) != std::string::npos; };
    if (follows("aApP"))
        hour = hour % noon + (follows("pP") ? noon : 0);
    return hour * minutesPerHour + minute;
}

bool hasWordWith(std::string_view beginning, const std::string& text)
{
    auto at = text.find(beginning);
    while (at != std::string::npos && at > 0 && std::isalpha(static_cast<unsigned char>(text[at - 1])))
        at = text.find(beginning, at + 1);
    return at != std::string::npos;
}

bool isGlyph(const Json& image, const fs::path& glyphs)
{
    return image.is_string() && fs::path(image.get<std::string>()).parent_path() == glyphs;
}

}

std::string glyphFor(const std::string& conditions, bool isNight)
{
    std::string text = conditions;
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    const auto row = std::find_if(
        rows.begin(), rows.end(), [&](const Row& known) { return hasWordWith(known.beginning, text); });
    if (row == rows.end())
        return "";
    return std::string(row->glyph) + (isNight && row->hasNight ? "-night" : "");
}

bool isNight(const Json& weather, const std::string& time)
{
    const auto sunrise = minutesOf(weather.value("sunrise", Json()));
    const auto sunset = minutesOf(weather.value("sunset", Json()));
    const auto now = minutesOf(time.size() < 16 ? Json() : Json(time.substr(11, 5)));
    if (!sunrise || !sunset || !now)
        return false;
    // In a northern summer the sun sets after midnight.
    return *sunrise < *sunset ? *now < *sunrise || *now >= *sunset : *now >= *sunset && *now < *sunrise;
}

Json withGlyph(Json weather, const std::string& time, const fs::path& glyphs)
{
    if (!weather.is_object() || (weather.contains("image") && !isGlyph(weather.at("image"), glyphs)))
        return weather;
    weather.erase("image");
    const Json conditions = weather.value("conditions", Json());
    const std::string name = conditions.is_string() ? glyphFor(conditions, isNight(weather, time)) : "";
    const fs::path glyph = glyphs / (name + ".png");
    if (!name.empty() && fs::exists(glyph))
        weather["image"] = glyph.string();
    return weather;
}

}
