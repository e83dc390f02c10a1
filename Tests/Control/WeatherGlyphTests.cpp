// Which picture belongs to a weather library's words, and when it is night.
#include "Simulator/App/WeatherGlyph.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using namespace Simulator::App;
using Support::TemporaryFolder;
using Simulator::Control::Json;

TEST(WeatherGlyph, IsOneOfADozenForTheWordsOfTheConditions)
{
    const std::pair<const char*, const char*> words[] = {{"Clear", "clear"}, {"Sunny", "clear"},
        {"Mostly Clear", "mostly-clear"}, {"Mostly Sunny", "mostly-clear"}, {"Fair", "mostly-clear"},
        {"Partly Cloudy", "partly-cloudy"}, {"partly sunny", "partly-cloudy"}, {"Cloudy", "cloudy"},
        {"Mostly Cloudy", "cloudy"}, {"Overcast", "overcast"}, {"Fog", "fog"}, {"Hazy", "fog"}, {"Mist", "fog"},
        {"Drizzle", "drizzle"}, {"Light Rain", "rain"}, {"Heavy Rain", "rain"}, {"Showers", "showers"},
        {"Scattered Showers", "showers"}, {"Thunderstorms", "thunderstorm"}, {"Isolated T-Storms", "thunderstorm"},
        {"Tropical Storm", "thunderstorm"}, {"Sleet", "sleet"}, {"Freezing Drizzle", "sleet"},
        {"Rain and Snow", "sleet"}, {"Snow", "snow"}, {"Snow Showers", "snow"}, {"Flurries", "snow"},
        {"Blizzard", "snow"}, {"Hail", "hail"}, {"Windy", "wind"}, {"Breezy", "wind"}, {"Sandstorm", "fog"}};
    for (const auto& [conditions, glyph] : words)
        EXPECT_EQ(glyphFor(conditions, false), glyph) << conditions;
}

TEST(WeatherGlyph, IsNoneForWordsThatSayNothingOfTheWeather)
{
    for (const char* conditions : {"", "--", "Nice", "Notice: unclear", "מעונן חלקית", "\xFF\xFE"})
        EXPECT_EQ(glyphFor(conditions, false), "") << conditions;
}

TEST(WeatherGlyph, HasAMoonWhereThereWasASun)
{
    for (const std::string conditions : {"Clear", "Mostly Clear", "Partly Cloudy", "Showers"})
        EXPECT_EQ(glyphFor(conditions, true), glyphFor(conditions, false) + "-night");
    for (const std::string conditions : {"Cloudy", "Overcast", "Fog", "Drizzle", "Rain", "Thunderstorms", "Sleet",
             "Snow", "Hail", "Windy"})
        EXPECT_EQ(glyphFor(conditions, true), glyphFor(conditions, false));
}

TEST(WeatherNight, LiesBetweenSunsetAndSunrise)
{
    const auto isNightAt = [](const char* clock, const char* sunrise, const char* sunset) {
        return isNight({{"sunrise", sunrise}, {"sunset", sunset}}, std::string("2020-11-15T") + clock);
    };
    for (const auto& [sunrise, sunset] : {std::pair("6:12", "16:41"), std::pair("06.12", "16.41 Uhr"),
             std::pair("6:12 AM", "4:41 PM"), std::pair("6:12am", "4:41 p.m.")}) {
        EXPECT_TRUE(isNightAt("00:00:00", sunrise, sunset)) << sunrise;
        EXPECT_TRUE(isNightAt("06:11:59", sunrise, sunset)) << sunrise;
        EXPECT_FALSE(isNightAt("06:12:00", sunrise, sunset)) << sunrise;
        EXPECT_FALSE(isNightAt("16:40:59", sunrise, sunset)) << sunrise;
        EXPECT_TRUE(isNightAt("16:41:00", sunrise, sunset)) << sunrise;
    }
    EXPECT_TRUE(isNightAt("01:00:00", "3:05 AM", "12:20 AM"));
    EXPECT_FALSE(isNightAt("00:10:00", "3:05 AM", "12:20 AM"));
    EXPECT_FALSE(isNightAt("23:00:00", "3:05 AM", "12:20 AM"));
}

TEST(WeatherNight, IsNotKnownWithoutBoth)
{
    const std::string midnight = "2020-11-15T00:00:00";
    EXPECT_FALSE(isNight(Json::object(), midnight));
    EXPECT_FALSE(isNight({{"sunrise", "6:12"}}, midnight));
    for (const Json& odd : {Json("--"), Json(""), Json("noon"), Json(":"), Json(612), Json(std::string(1 << 20, '6'))})
        EXPECT_FALSE(isNight({{"sunrise", odd}, {"sunset", "16:41"}}, midnight)) << odd.dump().substr(0, 20);
    EXPECT_FALSE(isNight({{"sunrise", "6:12"}, {"sunset", "16:41"}}, ""));
}

class WeatherImage : public testing::Test {
protected:
    Json dressed(const Json& weather) { return withGlyph(weather, "2020-11-15T21:41:00", folder.path()); }

    TemporaryFolder folder;
    const std::string rain = folder.put("rain.png", "picture");
};

TEST_F(WeatherImage, IsTheGlyphOfTheConditions)
{
    EXPECT_EQ(dressed({{"conditions", "Rain"}}), Json({{"conditions", "Rain"}, {"image", rain}}));
}

TEST_F(WeatherImage, FromElsewhereStays)
{
    const Json weather{{"conditions", "Rain"}, {"image", "/elsewhere/sun.png"}};
    EXPECT_EQ(dressed(weather), weather);
}

TEST_F(WeatherImage, GoesWithTheConditionsThatItWasOf)
{
    EXPECT_EQ(dressed({{"conditions", "Frogs"}, {"image", rain}}), Json({{"conditions", "Frogs"}}));
    EXPECT_EQ(dressed({{"conditions", "Rain"}, {"image", folder.at("snow.png")}})["image"], rain);
}

TEST_F(WeatherImage, IsNoneWithoutConditionsOrWithoutItsFile)
{
    for (const Json& weather : {Json(), Json::object(), Json{{"conditions", 7}}, Json{{"conditions", "Snow"}}})
        EXPECT_EQ(dressed(weather), weather);
}
