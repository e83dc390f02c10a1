// The size that a text takes.
#include "SampleFonts.hpp"

#include "Simulator/Graphics/Text.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

Text text(std::string string, double size = 20)
{
    Text text;
    text.runs.push_back({std::move(string), nullptr, size, {}, {}});
    return text;
}

Size measured(const Text& text, Size limit = {}, double scale = 1)
{
    return measure(systemCatalogue(), text, limit, scale);
}

}

TEST(TextMeasure, OneLineIsAsHighAsItsFont)
{
    const double lineHeight = systemCatalogue().systemFont()->lineHeight(20);
    EXPECT_NEAR(measured(text("9:41")).height, lineHeight, 1.1);
}

TEST(TextMeasure, WidthGrowsWithCharactersAndSize)
{
    const double one = measured(text("8"), {}, 16).width;
    EXPECT_NEAR(measured(text("8888"), {}, 16).width, 4 * one, 0.3);
    EXPECT_NEAR(measured(text("8", 40), {}, 16).width, 2 * one, 0.2);
}

TEST(TextMeasure, RoundsUpToPixels)
{
    const Size points = measured(text("Hamburg", 13.3), {}, 1);
    const Size thirds = measured(text("Hamburg", 13.3), {}, 3);
    EXPECT_EQ(points.width, std::floor(points.width));
    EXPECT_NEAR(thirds.width * 3, std::round(thirds.width * 3), 1e-9);
    EXPECT_LE(thirds.width, points.width);
    EXPECT_GT(thirds.width, points.width - 1);
}

TEST(TextMeasure, WrapsWithinTheLimit)
{
    Text wrapped = text("one two three four five six");
    wrapped.numberOfLines = 0;
    wrapped.lineBreakMode = LineBreakMode::wordWrap;
    const Size free = measured(wrapped);
    const Size narrow = measured(wrapped, {100, 0});
    EXPECT_LE(narrow.width, 100);
    EXPECT_GT(narrow.height, 2.5 * free.height);
    wrapped.numberOfLines = 2;
    EXPECT_NEAR(measured(wrapped, {100, 0}).height, 2 * free.height, 1.1);
}

TEST(TextMeasure, TruncationKeepsWithinTheLimit)
{
    const Size size = measured(text("A text that is far too long for the line"), {80, 0});
    EXPECT_LE(size.width, 80);
    EXPECT_GT(size.width, 60);
}

TEST(TextMeasure, ParagraphsAreLines)
{
    Text lines = text("a\nb\nc");
    lines.numberOfLines = 0;
    EXPECT_NEAR(measured(lines, {}, 16).height, 3 * measured(text("a"), {}, 16).height, 0.5);
}

TEST(TextMeasure, NothingShrinksForTheMeasurement)
{
    Text shrinking = text("Wednesday");
    shrinking.adjustsFontSizeToFitWidth = true;
    EXPECT_EQ(measured(shrinking), measured(text("Wednesday")));
}

TEST(TextMeasure, NothingTakesNoRoom)
{
    EXPECT_EQ(measured(text("")), (Size{0, 0}));
    EXPECT_EQ(measured(Text{}), (Size{0, 0}));
}

TEST(TextMeasure, ALabelOfTheMeasuredSizeIsNotTruncated)
{
    for (const char* string : {"9:41", "Wednesday, September 30", "שלום", "12 °C"}) {
        const Text whole = text(string);
        const Size size = measured(whole, {}, 3);
        EXPECT_EQ(measured(whole, size, 3), size) << string;
    }
}

TEST(TextMeasure, ATextFitsWhereItIsShownToItsEnd)
{
    const auto isWhole = [](const Text& text, Size bounds) { return fits(systemCatalogue(), text, bounds, 1); };
    Text line = text("Wednesday");
    const Size size = measured(line);
    EXPECT_TRUE(isWhole(line, size));
    EXPECT_FALSE(isWhole(line, {size.width - 2, size.height}));
    EXPECT_FALSE(isWhole(line, {size.width, size.height - 2}));
    EXPECT_FALSE(isWhole(line, {}));
    line.adjustsFontSizeToFitWidth = true;
    EXPECT_TRUE(isWhole(line, {size.width / 2, size.height}));
    line.minimumScale = 0.9;
    EXPECT_FALSE(isWhole(line, {size.width / 2, size.height}));
    Text lines = text("one two three four five six");
    lines.numberOfLines = 2;
    EXPECT_TRUE(isWhole(lines, {200, 2 * size.height}));
    EXPECT_FALSE(isWhole(lines, {80, 2 * size.height}));
    EXPECT_FALSE(isWhole(lines, {200, size.height}));
    EXPECT_TRUE(isWhole(Text(), {}));
}

}
