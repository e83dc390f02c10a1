// The pictures of the simulated weather: good in colours, and good in the colour of a text.
#include "Icon.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

namespace {

using namespace Icons;

const std::set<std::string> names{"clear", "clear-night", "mostly-clear", "mostly-clear-night", "partly-cloudy",
    "partly-cloudy-night", "cloudy", "overcast", "fog", "drizzle", "rain", "showers", "showers-night", "thunderstorm",
    "sleet", "snow", "hail", "wind"};

Icon glyph(const std::string& name)
{
    return readFile(GLYPH_FOLDER "/" + name + ".png");
}

/// How much of the two differs where only transparency counts.
double difference(const Icon& one, const Icon& other)
{
    double sum = 0;
    for (std::size_t i = 3; i < one.pixels.size(); i += 4)
        sum += std::abs(one.pixels[i] - other.pixels[i]);
    return sum / 255;
}

TEST(WeatherGlyphs, AreTheseAndNoOthers)
{
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(GLYPH_FOLDER))
        found.insert(entry.path().filename().string());
    std::set<std::string> expected;
    for (const std::string& name : names)
        expected.insert(name + ".png");
    EXPECT_EQ(found, expected);
}

TEST(WeatherGlyphs, FitTheDateLineAtThreePixelsAPoint)
{
    for (const std::string& name : names) {
        const Icon icon = glyph(name);
        EXPECT_EQ(icon.width, 96) << name;
        EXPECT_EQ(icon.height, 96) << name;
        EXPECT_TRUE(icon.hasTransparency) << name;
    }
}

TEST(WeatherGlyphs, KeepClearOfTheirEdges)
{
    for (const std::string& name : names) {
        const Icon icon = glyph(name);
        int onTheEdge = 0;
        for (int i = 0; i < 96; ++i)
            onTheEdge += icon.alpha(i, 0) + icon.alpha(i, 95) + icon.alpha(0, i) + icon.alpha(95, i);
        EXPECT_EQ(onTheEdge, 0) << name;
    }
}

TEST(WeatherGlyphs, HaveColoursOfTheirOwn)
{
    for (const std::string& name : names) {
        const Icon icon = glyph(name);
        int brightest = 0;
        for (std::size_t i = 0; i < icon.pixels.size(); i += 4)
            brightest = std::max<int>(brightest, icon.pixels[i] + icon.pixels[i + 1] + icon.pixels[i + 2]);
        EXPECT_GT(brightest, 3 * 0x80) << name;
    }
}

// The lock screen may draw them all in one colour.
TEST(WeatherGlyphs, AreToldApartByTheirShapes)
{
    for (const std::string& one : names) {
        for (const std::string& other : names) {
            if (one < other) {
                EXPECT_GT(difference(glyph(one), glyph(other)), 100) << one << " and " << other;
            }
        }
    }
}

}
