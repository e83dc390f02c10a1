// Layers that show text: places, colours, pictures in line, hostile strings.
#include "SampleFonts.hpp"
#include "Screen.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

std::vector<std::uint8_t> shown(const Layer& layer, Size size = {200, 60})
{
    Screen screen(size);
    screen.show(layer);
    return screen.bytes();
}

PixelRect litBy(const Layer& layer, Size size = {200, 60})
{
    Screen screen(size);
    screen.show(layer);
    return screen.lit();
}

TextRun inlinePicture(const Rect& bounds, bool isTemplate = false)
{
    TextRun run;
    run.size = 20;
    run.color = blue;
    run.attachment = TextAttachment{Image::fromBytes(png(4, 4, plain({255, 0, 0}))), bounds, isTemplate};
    return run;
}

}

TEST(TextLayer, StandsInTheMiddleOfItsHeight)
{
    const PixelRect high = litBy(label({0, 0, 200, 60}, "H"));
    const PixelRect low = litBy(label({0, 20, 200, 40}, "H"));
    EXPECT_EQ(low.y - high.y, 10);
    const double capital = systemCatalogue().systemFont()->capHeight(20);
    EXPECT_NEAR(high.height, capital, 1.5);
}

TEST(TextLayer, AlignsLeftCentreAndRight)
{
    Layer layer = label({0, 0, 200, 60}, "HH");
    textOf(layer).alignment = TextAlignment::left;
    const PixelRect left = litBy(layer);
    textOf(layer).alignment = TextAlignment::center;
    const PixelRect center = litBy(layer);
    textOf(layer).alignment = TextAlignment::right;
    const PixelRect right = litBy(layer);
    EXPECT_LT(left.x, 5);
    EXPECT_NEAR(center.x + center.width / 2.0, 100, 1);
    EXPECT_GT(right.right(), 195);
}

TEST(TextLayer, NaturalAlignmentFollowsTheScript)
{
    Layer layer = label({0, 0, 200, 60}, "שלום");
    EXPECT_GT(litBy(layer).x, 100);
    textOf(layer).alignment = TextAlignment::left;
    EXPECT_LT(litBy(layer).x, 10);
    EXPECT_LT(litBy(label({0, 0, 200, 60}, "Hello")).x, 10);
}

TEST(TextLayer, EveryRunHasItsColour)
{
    Layer layer = label({0, 0, 200, 60}, "HH", 40);
    textOf(layer).runs.front().color = red;
    textOf(layer).runs.push_back({"HH", nullptr, 40, green, {}});
    Screen screen({200, 60});
    screen.show(layer);
    int redPixels = 0;
    int greenPixels = 0;
    for (int x = 0; x < 200; ++x) {
        redPixels += screen.at(x, 30).r > 200;
        greenPixels += screen.at(x, 30).g > 200;
        EXPECT_TRUE(screen.at(x, 30).r == 0 || screen.at(x, 30).g == 0);
    }
    EXPECT_GT(redPixels, 4);
    EXPECT_EQ(redPixels, greenPixels);
}

TEST(TextLayer, TruncatesAtTheTail)
{
    Layer layer = label({0, 0, 100, 60}, "A text that is far too long for the line");
    const PixelRect cut = litBy(layer);
    EXPECT_LE(cut.right(), 101);
    EXPECT_GT(cut.right(), 80);
    textOf(layer).lineBreakMode = LineBreakMode::truncateHead;
    EXPECT_NE(shown(layer), shown(label({0, 0, 100, 60}, "A text that is far too long for the line")));
}

TEST(TextLayer, ClipsAtItsBoundsIfAskedTo)
{
    Layer layer = label({0, 0, 50, 60}, "WWWWWWWWWW");
    textOf(layer).lineBreakMode = LineBreakMode::clip;
    EXPECT_EQ(litBy(layer).right(), 50);
}

TEST(TextLayer, ShowsNoMoreLinesThanAllowed)
{
    Layer layer = label({0, 0, 60, 200}, "one two three four five six seven");
    textOf(layer).lineBreakMode = LineBreakMode::wordWrap;
    std::vector<int> heights;
    for (const int lines : {1, 2, 0}) {
        textOf(layer).numberOfLines = lines;
        heights.push_back(litBy(layer, {200, 200}).height);
    }
    EXPECT_GT(heights[1], heights[0] + 15);
    EXPECT_GT(heights[2], heights[1] + 15);
}

TEST(TextLayer, ShowsTheFirstParagraphOnlyOnOneLine)
{
    Layer layer = label({0, 0, 200, 60}, "H\nH");
    textOf(layer).lineBreakMode = LineBreakMode::wordWrap;
    EXPECT_EQ(shown(layer), shown(label({0, 0, 200, 60}, "H")));
    textOf(layer).lineBreakMode = LineBreakMode::truncateTail;
    EXPECT_EQ(shown(layer), shown(label({0, 0, 200, 60}, "H…")));
}

TEST(TextLayer, ShrinksUntilItFits)
{
    Layer layer = label({0, 0, 100, 60}, "Wednesday, September", 30);
    textOf(layer).adjustsFontSizeToFitWidth = true;
    textOf(layer).minimumScale = 0.1;
    const PixelRect fitted = litBy(layer);
    EXPECT_GT(fitted.right(), 92);
    EXPECT_LE(fitted.right(), 101);
    EXPECT_LT(fitted.height, 16);
    textOf(layer).minimumScale = 0.9;
    EXPECT_GT(litBy(layer).height, 18);
}

TEST(TextLayer, AnInlinePictureStandsOnTheBaseline)
{
    Layer layer = label({0, 0, 200, 60}, "");
    textOf(layer).runs = {{"H", nullptr, 20, white, {}}, inlinePicture({0, 0, 12, 10}), {"H", nullptr, 20, white, {}}};
    Screen screen({200, 60});
    screen.show(layer);
    const PixelRect lit = screen.lit();
    const int middle = lit.x + lit.width / 2;
    EXPECT_EQ(screen.at(middle, lit.bottom() - 3), (Rgba{255, 0, 0}));
    EXPECT_EQ(screen.at(middle, lit.bottom() - 13), (Rgba{0, 0, 0}));
    textOf(layer).runs[1] = inlinePicture({0, -5, 12, 10});
    screen.show(layer);
    EXPECT_NEAR(screen.lit().bottom(), lit.bottom() + 5, 1);
}

TEST(TextLayer, AnInlineTemplateTakesTheTextColour)
{
    Layer layer = label({0, 0, 200, 60}, "");
    textOf(layer).runs = {inlinePicture({0, 0, 20, 20}, true)};
    Screen screen({200, 60});
    screen.show(layer);
    const PixelRect lit = screen.lit();
    EXPECT_EQ(lit.width, 20);
    EXPECT_EQ(screen.at(lit.x + 10, lit.y + 10), (Rgba{0, 0, 255}));
}

TEST(TextLayer, ATallInlinePictureMakesTheLineTaller)
{
    Text text;
    text.runs = {{"H", nullptr, 20, white, {}}};
    const double plainHeight = measure(systemCatalogue(), text, {}).height;
    text.runs.push_back(inlinePicture({0, 0, 10, 60}));
    EXPECT_GT(measure(systemCatalogue(), text, {}).height, plainHeight + 30);
}

TEST(TextLayer, ShowsReplacementsForWhatIsNotText)
{
    EXPECT_EQ(shown(label({0, 0, 200, 60}, "a\xFF\xFE z")), shown(label({0, 0, 200, 60}, "a\uFFFD\uFFFD z")));
    EXPECT_EQ(shown(label({0, 0, 200, 60}, std::string("a\0b", 3))), shown(label({0, 0, 200, 60}, "ab")));
    EXPECT_EQ(shown(label({0, 0, 200, 60}, "a\xE2\x82")), shown(label({0, 0, 200, 60}, "a\uFFFD\uFFFD")));
}

TEST(TextLayer, AVeryLongTextLooksLikeItsBeginning)
{
    std::string text;
    while (text.size() < 100'000)
        text += "Lorem ipsum dolor sit amet ";
    EXPECT_EQ(shown(label({0, 0, 200, 60}, text)), shown(label({0, 0, 200, 60}, text.substr(0, 2'000))));
    Layer block = label({0, 0, 200, 60}, text, 10);
    textOf(block).numberOfLines = 0;
    Layer beginning = label({0, 0, 200, 60}, text.substr(0, 2'000), 10);
    textOf(beginning).numberOfLines = 0;
    EXPECT_EQ(shown(block), shown(beginning));
}

TEST(TextLayer, AVeryLongTextCutAtItsHeadLooksLikeItsEnd)
{
    std::string text;
    for (int i = 0; text.size() < 100'000; ++i)
        text += std::to_string(i) + " ";
    Layer whole = label({0, 0, 200, 60}, text);
    Layer end = label({0, 0, 200, 60}, text.substr(text.size() - 2'000));
    textOf(whole).lineBreakMode = textOf(end).lineBreakMode = LineBreakMode::truncateHead;
    EXPECT_EQ(shown(whole), shown(end));
}

TEST(TextLayer, HostileStringsAreShownSomehow)
{
    std::string marks = "a";
    std::string directions;
    for (int i = 0; i < 5'000; ++i) {
        marks += "\u0301";
        directions += i % 2 ? "\u202E" : "\u2066";
    }
    for (const std::string& text :
        {marks, directions + "x", std::string("\u2028\u2029\n\r\n"), std::string("\t\u200B")}) {
        Layer layer = label({0, 0, 100, 60}, text);
        for (const int lines : {0, 1, 3}) {
            textOf(layer).numberOfLines = lines;
            EXPECT_LE(litBy(layer).width, 200);
        }
    }
}

TEST(TextLayer, OddSizesAreBroughtIntoReason)
{
    for (const double size : {-5.0, 0.0, std::nan(""), 1e300}) {
        Layer layer = label({0, 0, 200, 60}, "9:41", size);
        EXPECT_EQ(shown(layer), shown(layer));
    }
    Layer layer = label({0, 0, 200, 60}, "");
    textOf(layer).runs = {inlinePicture({std::nan(""), 0, 1e300, -4}), inlinePicture({0, 0, 1e300, 1e300})};
    EXPECT_EQ(shown(layer), shown(layer));
}

TEST(TextLayer, NothingIsDrawnWithoutCharactersOrRoom)
{
    EXPECT_TRUE(litBy(label({0, 0, 200, 60}, "")).isEmpty());
    EXPECT_TRUE(litBy(label({0, 0, 0, 60}, "9:41")).isEmpty());
    EXPECT_TRUE(litBy(label({0, 0, 200, 0}, "9:41")).isEmpty());
}

}
