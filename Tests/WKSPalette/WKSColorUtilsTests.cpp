// Palettes and averages of pictures, and the tests of single colours, by message.
#include "Objects.hpp"

#include <array>
#include <utility>

namespace LYR {
namespace {

class WKSColorUtilsClass : public ObjectTest { };

UI::Color grey(double white)
{
    return UI::Color::sendClass<UI::Color, "colorWithWhite:alpha:">(white, 1.0);
}

/// A picture of horizontal bands, 20 by 20 pixels: so many rows of each colour.
UI::Image bands(std::initializer_list<std::pair<int, std::uint32_t>> rows)
{
    std::vector<std::uint32_t> colors;
    for (auto [count, color] : rows)
        colors.insert(colors.end(), static_cast<std::size_t>(count) * 20, color);
    return pictureOf(20, static_cast<int>(colors.size() / 20), colors);
}

void expectPalette(const WKSPalette& palette, std::array<std::uint32_t, 4> colors, double alpha)
{
    ASSERT_TRUE(palette) << "there is no palette";
    expectColor(palette.background(), colors[0], alpha);
    expectColor(palette.primary(), colors[1], alpha);
    expectColor(palette.secondary(), colors[2], alpha);
    expectColor(palette.detail(), colors[3], alpha);
}

TEST_F(WKSColorUtilsClass, JudgesAGreyOfTwoComponentsInAllThreeChannels)
{
    ASSERT_EQ(CGColorGetNumberOfComponents(grey(0.49).CGColor()), 2u);
    EXPECT_TRUE(WKSColorUtils::isDark(grey(0.49)));
    EXPECT_FALSE(WKSColorUtils::isDark(grey(0.5)));
}

TEST_F(WKSColorUtilsClass, JudgesRedGreenAndBlueByTheirBrightness)
{
    EXPECT_TRUE(WKSColorUtils::isDark(UI::Color::colorWithRed(1, 0, 0, 1)));
    EXPECT_FALSE(WKSColorUtils::isDark(UI::Color::colorWithRed(0, 1, 0, 1)));
    EXPECT_TRUE(WKSColorUtils::isDark(UI::Color::colorWithRed(0, 0, 1, 1)));
    EXPECT_FALSE(WKSColorUtils::isDark(UI::Color::colorWithRed(1, 1, 1, 0)));
    EXPECT_TRUE(WKSColorUtils::isDark(UI::Color::colorWithRed(0.49, 0.49, 0.49, 1)));
    EXPECT_FALSE(WKSColorUtils::isDark(UI::Color::colorWithRed(0.5, 0.5, 0.5, 1)));
}

TEST_F(WKSColorUtilsClass, TakesWhatIsNoColourForDark)
{
    EXPECT_TRUE(WKSColorUtils::isDark(UI::Color()));
    EXPECT_TRUE((WKSColorUtils::sendClass<bool, "isDark:">("white"_ns)));
}

TEST_F(WKSColorUtilsClass, GivesNilForTheMinimumSaturationOfNil)
{
    EXPECT_FALSE(WKSColorUtils::colorWithMinimumSaturation(UI::Color(), 0.5));
    EXPECT_FALSE((WKSColorUtils::sendClass<UI::Color, "colorWithMinimumSaturation:withSaturation:">("white"_ns, 0.5)));
}

TEST_F(WKSColorUtilsClass, LeavesAColourUnchangedWhoseSaturationIsTheMinimumOrMore)
{
    UI::Color color = UI::Color::colorWithRed(1, 0.5, 0.5, 1);
    EXPECT_EQ(WKSColorUtils::colorWithMinimumSaturation(color, 0.5), color);
    EXPECT_EQ(WKSColorUtils::colorWithMinimumSaturation(color, 0.35), color);
    EXPECT_EQ(WKSColorUtils::colorWithMinimumSaturation(color, -0.1), color);
    UI::Color plain = grey(0.5);
    EXPECT_EQ(WKSColorUtils::colorWithMinimumSaturation(plain, 0), plain);
}

TEST_F(WKSColorUtilsClass, RaisesTheSaturationAndKeepsHueBrightnessAndAlpha)
{
    UI::Color before = UI::Color::colorWithHue(0.6, 0.2, 0.8, 0.7);
    CGFloat hue, saturation, brightness, alpha;
    ASSERT_TRUE(WKSColorUtils::colorWithMinimumSaturation(before, 0.5).getHue(&hue, &saturation, &brightness, &alpha));
    EXPECT_NEAR(hue, 0.6, 1e-9);
    EXPECT_NEAR(saturation, 0.5, 1e-9);
    EXPECT_NEAR(brightness, 0.8, 1e-9);
    EXPECT_NEAR(alpha, 0.7, 1e-9);
}

TEST_F(WKSColorUtilsClass, GivesNoColoursForNoPicture)
{
    EXPECT_FALSE(WKSColorUtils::averageColors(UI::Image(), 1));
    EXPECT_FALSE(WKSColorUtils::averageColorNew(UI::Image(), 1));
    EXPECT_FALSE(WKSColorUtils::averageColor(UI::Image(), 1));
}

TEST_F(WKSColorUtilsClass, GivesNoColoursForAnObjectThatIsNoPicture)
{
    EXPECT_FALSE((WKSColorUtils::sendClass<WKSPalette, "averageColors:withAlpha:">("picture"_ns, 1.0)));
    EXPECT_FALSE((WKSColorUtils::sendClass<UI::Color, "averageColorNew:withAlpha:">("picture"_ns, 1.0)));
    EXPECT_FALSE((WKSColorUtils::sendClass<UI::Color, "averageColor:withAlpha:">("picture"_ns, 1.0)));
}

TEST_F(WKSColorUtilsClass, GivesThePaletteOfASmallPictureExactly)
{
    UI::Image image = bands({{10, 0xFF141E5A}, {5, 0xFFFA96AA}, {3, 0xFFBEF03C}, {2, 0xFF78C8FA}});
    expectPalette(WKSColorUtils::averageColors(image, 1), {0x141E5A, 0xFA96AA, 0xBEF03C, 0x78C8FA}, 1);
}

TEST_F(WKSColorUtilsClass, GivesEveryColourThatAlpha)
{
    UI::Image image = bands({{15, 0xFF141E5A}, {5, 0xFFFA96AA}});
    expectPalette(WKSColorUtils::averageColors(image, 0.3), {0x141E5A, 0xFA96AA, 0xFFFFFF, 0xFFFFFF}, 0.3);
    expectPalette(WKSColorUtils::averageColors(image, 0), {0x141E5A, 0xFA96AA, 0xFFFFFF, 0xFFFFFF}, 0);
}

TEST_F(WKSColorUtilsClass, ReducesALargePictureToItsMainColours)
{
    std::vector<std::uint32_t> colors;
    for (int row = 0; row < 400; ++row)
        colors.insert(colors.end(), 200, row < 240 ? 0xFFFA96AA : 0xFF141E5A);
    expectPalette(
        WKSColorUtils::averageColors(pictureOf(200, 400, colors), 1), {0xFA96AA, 0x141E5A, 0x000000, 0x000000}, 1);
}

TEST_F(WKSColorUtilsClass, AnswersForEveryShapeOfASingleColour)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {1, 2}, {25, 25}, {26, 1}, {1, 26}, {3000, 1}, {1, 3000}, {400, 866}};
    for (auto [width, height] : sizes) {
        SCOPED_TRACE(testing::Message() << width << " by " << height);
        expectPalette(WKSColorUtils::averageColors(pictureOf(width, height, 0xFF141E5A), 1),
            {0x141E5A, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF}, 1);
        expectColor(WKSColorUtils::averageColor(pictureOf(width, height, 0xFF141E5A), 1), 0x141E5A, 1);
    }
}

TEST_F(WKSColorUtilsClass, GivesBlackAndWhiteForATransparentPicture)
{
    expectPalette(
        WKSColorUtils::averageColors(pictureOf(40, 40, 0x00000000), 1), {0x000000, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF}, 1);
}

TEST_F(WKSColorUtilsClass, GivesTheClearColourAsTheAverageOfATransparentPicture)
{
    Components components(WKSColorUtils::averageColor(pictureOf(40, 40, 0x00000000), 1));
    EXPECT_EQ(components.alpha, 0);
}

TEST_F(WKSColorUtilsClass, TakesThePremultipliedAverageOfATranslucentPicture)
{
    expectColor(WKSColorUtils::averageColor(pictureOf(4, 4, 0x80004000), 1), 0x004000, 1);
}

TEST_F(WKSColorUtilsClass, AveragesAllPixels)
{
    Components components(WKSColorUtils::averageColor(bands({{10, 0xFFFF0000}, {10, 0xFF0000FF}}), 0.4));
    EXPECT_NEAR(components.red, 0.5, 0.01);
    EXPECT_NEAR(components.green, 0, 0.01);
    EXPECT_NEAR(components.blue, 0.5, 0.01);
    EXPECT_NEAR(components.alpha, 0.4, 0.001);
}

TEST_F(WKSColorUtilsClass, RaisesTheSaturationOfAGreyAverageToFifteenHundredths)
{
    CGFloat hue, saturation, brightness, alpha;
    UI::Color average = WKSColorUtils::averageColor(pictureOf(4, 4, 0xFF646464), 1);
    ASSERT_TRUE(average.getHue(&hue, &saturation, &brightness, &alpha));
    EXPECT_NEAR(saturation, 0.15, 1e-9);
    EXPECT_NEAR(brightness, 100 / 255.0, 1e-9);
}

TEST_F(WKSColorUtilsClass, GivesTheBackgroundOfThePaletteAsTheNewAverage)
{
    expectColor(WKSColorUtils::averageColorNew(bands({{15, 0xFF141E5A}, {5, 0xFFFA96AA}}), 0.5), 0x141E5A, 0.5);
}

TEST_F(WKSColorUtilsClass, GivesTheSamePaletteEveryTime)
{
    std::vector<std::uint32_t> colors;
    for (std::uint32_t i = 0; i < 64 * 64; ++i)
        colors.push_back(0xFF000000 | (i * 2654435761u) >> 8);
    UI::Image image = pictureOf(64, 64, colors);
    WKSPalette first = WKSColorUtils::averageColors(image, 1);
    WKSPalette second = WKSColorUtils::averageColors(image, 1);
    for (auto entry : {&WKSPalette::background, &WKSPalette::primary, &WKSPalette::secondary, &WKSPalette::detail}) {
        Components left((first.*entry)());
        Components right((second.*entry)());
        EXPECT_EQ(left.red, right.red);
        EXPECT_EQ(left.green, right.green);
        EXPECT_EQ(left.blue, right.blue);
    }
}

TEST_F(WKSColorUtilsClass, SurvivesAPictureThatBreaksOff)
{
    std::vector<std::uint8_t> pixels(200 * 200 * 4, 90);
    auto png = Simulator::Graphics::Image::fromPixels(pixels.data(), 200, 200, 800)->encodePng();
    for (std::size_t length : {std::size_t{0}, std::size_t{8}, std::size_t{30}, png.size() / 2, png.size() - 1}) {
        UI::Image image = UI::Image::imageWithData(NS::Data::dataWithBytes(png.data(), length));
        WKSPalette palette = WKSColorUtils::averageColors(image, 1);
        EXPECT_EQ(static_cast<bool>(palette), static_cast<bool>(image));
        WKSColorUtils::averageColor(image, 1);
    }
}

}
}
