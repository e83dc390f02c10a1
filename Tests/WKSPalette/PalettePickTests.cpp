// The choice of four colours from the pixels of a picture.
#include "WKSPalette/PalettePick.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>
#include <tuple>
#include <vector>

namespace LYR {

/// Failed expectations show the packed colours.
void PrintTo(const PickedColours& colors, std::ostream* stream)
{
    for (WKSColor color : {colors.background, colors.primary, colors.secondary, colors.detail})
        *stream << std::hex << color.packed() << ' ';
}

namespace {

constexpr WKSColor rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return {red, green, blue, 255};
}

constexpr WKSColor black = rgb(0, 0, 0);
constexpr WKSColor white = rgb(255, 255, 255);
constexpr WKSColor navy = rgb(20, 30, 90);
constexpr WKSColor wine = rgb(110, 20, 30);
constexpr WKSColor forest = rgb(10, 100, 20);
constexpr WKSColor rose = rgb(250, 150, 170);
constexpr WKSColor lime = rgb(190, 240, 60);
constexpr WKSColor sky = rgb(120, 200, 250);

struct Patch {
    WKSColor color;
    std::size_t count;
};

std::vector<WKSColor> picture(std::initializer_list<Patch> patches)
{
    std::vector<WKSColor> pixels;
    for (const Patch& patch : patches)
        pixels.insert(pixels.end(), patch.count, patch.color);
    return pixels;
}

/// So many pixels around a colour, no two alike, all of its coarse cell if its channels begin one.
void addShades(std::vector<WKSColor>& pixels, WKSColor first, int count)
{
    for (int i = 0; i < count; ++i) {
        auto step = [&](std::uint8_t channel, int every) {
            return static_cast<std::uint8_t>(channel + i / every % 4);
        };
        pixels.push_back(rgb(step(first.r, 16), step(first.g, 4), step(first.b, 1)));
    }
}

PickedColours pick(std::initializer_list<Patch> patches)
{
    return pickPalette(picture(patches));
}

TEST(PalettePick, TakesTheMostFrequentColourAsBackground)
{
    EXPECT_EQ(pick({{wine, 5}, {navy, 9}, {forest, 3}}).background, navy);
}

TEST(PalettePick, PassesOverBlackAndWhiteForTheBackground)
{
    EXPECT_EQ(pick({{black, 500}, {white, 300}, {wine, 1}}).background, wine);
}

TEST(PalettePick, TakesBlackOrWhiteAsBackgroundOfAPictureWithNothingElse)
{
    EXPECT_EQ(pick({{black, 5}, {white, 9}}).background, white);
    EXPECT_EQ(pick({{black, 9}, {white, 5}}).background, black);
}

TEST(PalettePick, TakesTextColoursByFrequencyAmongThoseOfTheOtherDarkness)
{
    EXPECT_EQ(pick({{navy, 50}, {wine, 40}, {sky, 3}, {rose, 9}, {lime, 6}}), (PickedColours{navy, rose, lime, sky}));
    EXPECT_EQ(
        pick({{rose, 50}, {lime, 40}, {forest, 3}, {navy, 9}, {wine, 6}}), (PickedColours{rose, navy, wine, forest}));
}

TEST(PalettePick, TakesBlackAndWhiteAsTextColours)
{
    EXPECT_EQ(pick({{navy, 50}, {white, 20}, {rose, 9}}).primary, white);
    EXPECT_EQ(pick({{rose, 50}, {black, 20}, {navy, 9}}).primary, black);
}

TEST(PalettePick, LeavesOutTextColoursTooCloseToTheBackground)
{
    WKSColor justDark = rgb(100, 100, 100);
    WKSColor justLight = rgb(110, 105, 105);
    ASSERT_TRUE(justDark.isDark());
    ASSERT_FALSE(justLight.isDark());
    EXPECT_EQ(pick({{justDark, 50}, {justLight, 40}, {sky, 2}}).primary, sky);
}

TEST(PalettePick, LeavesOutTextColoursTooCloseToOneAnother)
{
    WKSColor almostRose = rgb(240, 160, 180);
    EXPECT_EQ(
        pick({{navy, 50}, {rose, 9}, {almostRose, 8}, {lime, 6}, {sky, 3}}), (PickedColours{navy, rose, lime, sky}));
}

TEST(PalettePick, FindsTheDetailDistinctFromPrimaryAndSecondary)
{
    WKSColor almostRose = rgb(240, 160, 180);
    WKSColor almostLime = rgb(180, 230, 70);
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}, {lime, 8}, {almostRose, 7}, {almostLime, 6}, {sky, 1}}),
        (PickedColours{navy, rose, lime, sky}));
}

TEST(PalettePick, FillsMissingTextColoursWithWhiteOnADarkBackground)
{
    EXPECT_EQ(pick({{navy, 50}, {wine, 9}}), (PickedColours{navy, white, white, white}));
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}}), (PickedColours{navy, rose, white, white}));
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}, {lime, 8}}), (PickedColours{navy, rose, lime, white}));
}

TEST(PalettePick, FillsMissingTextColoursWithBlackOnALightBackground)
{
    EXPECT_EQ(pick({{rose, 50}, {lime, 9}}), (PickedColours{rose, black, black, black}));
    EXPECT_EQ(pick({{rose, 50}, {navy, 9}}), (PickedColours{rose, navy, black, black}));
}

TEST(PalettePick, AnswersForASingleColour)
{
    EXPECT_EQ(pick({{navy, 1350}}), (PickedColours{navy, white, white, white}));
    EXPECT_EQ(pick({{black, 1350}}), (PickedColours{black, white, white, white}));
    EXPECT_EQ(pick({{white, 1350}}), (PickedColours{white, black, black, black}));
}

TEST(PalettePick, AnswersForASinglePixel)
{
    EXPECT_EQ(pick({{rose, 1}}), (PickedColours{rose, black, black, black}));
}

TEST(PalettePick, TreatsNoPixelsAsBlack)
{
    EXPECT_EQ(pickPalette({}), (PickedColours{black, white, white, white}));
}

TEST(PalettePick, TreatsATransparentPictureAsTheTransparentBlackThatItIs)
{
    WKSColor nothing{};
    EXPECT_EQ(pick({{nothing, 300}}), (PickedColours{nothing, white, white, white}));
}

TEST(PalettePick, CountsEqualChannelsOfDifferentAlphaApart)
{
    WKSColor faintWine{110, 20, 30, 128};
    EXPECT_EQ(pick({{wine, 4}, {faintWine, 4}, {navy, 5}}).background, navy);
}

TEST(PalettePick, TakesTheSmallerPackedValueOfEquallyFrequentColours)
{
    EXPECT_EQ(pick({{wine, 5}, {forest, 5}, {navy, 5}}).background, forest);
    EXPECT_EQ(pick({{navy, 50}, {rose, 5}, {lime, 5}, {sky, 5}}), (PickedColours{navy, sky, lime, rose}));
}

TEST(PalettePick, TakesASmallerPackedValueWithHighAlphaAfterOneWithLowAlpha)
{
    WKSColor faintWine{110, 20, 30, 100};
    EXPECT_EQ(pick({{navy, 5}, {faintWine, 5}}).background, faintWine);
}

TEST(PalettePick, TakesThemOutOfTheFullestCellsOfAPictureInWhichNoTwoPixelsAreAlike)
{
    std::vector<WKSColor> pixels;
    addShades(pixels, rgb(0x20, 0x50, 0xA0), 40);
    addShades(pixels, rgb(0xE0, 0xC0, 0x90), 30);
    addShades(pixels, rgb(0xA0, 0xE0, 0x50), 20);
    addShades(pixels, rgb(0xE0, 0x90, 0xE0), 10);
    // What the picture has little of, with less red in it.
    addShades(pixels, rgb(0x00, 0x60, 0x30), 9);
    addShades(pixels, rgb(0x40, 0xE0, 0xE0), 9);
    EXPECT_EQ(pickPalette(pixels),
        (PickedColours{rgb(0x20, 0x50, 0xA0), rgb(0xE0, 0xC0, 0x90), rgb(0xA0, 0xE0, 0x50), rgb(0xE0, 0x90, 0xE0)}));
}

TEST(PalettePick, PrefersAColourThatOccursTwiceToAFullCellOfColoursThatOccurOnce)
{
    std::vector<WKSColor> pixels = picture({{wine, 2}, {rose, 2}});
    addShades(pixels, rgb(0x20, 0x50, 0xA0), 40);
    addShades(pixels, rgb(0xE0, 0xC0, 0x90), 40);
    PickedColours picked = pickPalette(pixels);
    EXPECT_EQ(picked.background, wine);
    EXPECT_EQ(picked.primary, rose);
}

TEST(PalettePick, CountsThePixelsOfACellAndNotItsColours)
{
    std::vector<WKSColor> pixels = picture({{rgb(0x60, 0x10, 0x20), 5}, {rgb(0x61, 0x10, 0x20), 4}});
    pixels.insert(pixels.end(), 5, rgb(0x10, 0x20, 0x60));
    addShades(pixels, rgb(0x11, 0x20, 0x60), 3);
    EXPECT_EQ(pickPalette(pixels).background, rgb(0x60, 0x10, 0x20));
}

TEST(PalettePick, DrawsTheLinesBetweenCellsAtEverySixteenthValueOfAChannel)
{
    EXPECT_EQ(pick({{rgb(0x2F, 0x40, 0x80), 1}, {rgb(0x30, 0x40, 0x80), 1}, {rgb(0x3F, 0x4F, 0x8F), 1}}).background,
        rgb(0x30, 0x40, 0x80));
    EXPECT_EQ(pick({{rgb(0x30, 0x3F, 0x80), 1}, {rgb(0x30, 0x40, 0x80), 1}, {rgb(0x30, 0x4F, 0x80), 1}}).background,
        rgb(0x30, 0x40, 0x80));
    EXPECT_EQ(pick({{rgb(0x30, 0x40, 0x7F), 1}, {rgb(0x30, 0x40, 0x80), 1}, {rgb(0x30, 0x40, 0x8F), 1}}).background,
        rgb(0x30, 0x40, 0x80));
}

TEST(PalettePick, PutsEqualChannelsOfDifferentAlphaIntoOneCell)
{
    WKSColor faintWine{110, 20, 30, 128};
    EXPECT_EQ(pick({{wine, 5}, {faintWine, 4}, {navy, 5}}).background, wine);
}

TEST(PalettePick, TakesTheSmallerPackedValueOfEquallyFrequentColoursInEquallyFullCells)
{
    std::vector<WKSColor> pixels;
    addShades(pixels, rgb(0x60, 0x10, 0x20), 8);
    addShades(pixels, rgb(0x10, 0x20, 0x60), 8);
    addShades(pixels, rgb(0x00, 0x60, 0x10), 7);
    EXPECT_EQ(pickPalette(pixels).background, rgb(0x10, 0x20, 0x60));
}

TEST(PalettePick, DoesNotDependOnTheOrderOfThePixels)
{
    std::vector<WKSColor> pixels
        = picture({{navy, 40}, {wine, 40}, {rose, 7}, {lime, 7}, {sky, 7}, {white, 100}, {black, 100}, {forest, 40}});
    addShades(pixels, rgb(21, 30, 90), 20);
    addShades(pixels, rgb(121, 200, 248), 20);
    PickedColours expected = pickPalette(pixels);
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        std::shuffle(pixels.begin(), pixels.end(), random);
        EXPECT_EQ(pickPalette(pixels), expected);
    }
}

TEST(PalettePick, JudgesPaleColoursWithoutRaisingTheirSaturation)
{
    // Raised to a saturation of 0.15 this grey would be dark.
    WKSColor grey = rgb(104, 104, 104);
    ASSERT_FALSE(grey.isDark());
    EXPECT_EQ(pick({{rgb(23, 5, 5), 50}, {grey, 9}}).primary, grey);
}

TEST(PalettePick, AgreesWithASlowCountOnNoise)
{
    std::mt19937 random(8);
    std::vector<WKSColor> pixels;
    for (int i = 0; i < 1350; ++i)
        pixels.push_back(WKSColor::fromLong(0xFF000000 | (random() & 0x00F8F8F8)));
    PickedColours picked = pickPalette(pixels);

    // The first in this order is the winner: the counts are negative so that the largest comes first.
    using Rank = std::tuple<long, long, std::uint32_t>;
    auto coarse = [](WKSColor color) { return color.packed() & 0x00F0F0F0; };
    Rank best{};
    for (WKSColor color : pixels) {
        long count = std::count(pixels.begin(), pixels.end(), color);
        long countInCell = std::count_if(
            pixels.begin(), pixels.end(), [&](WKSColor other) { return coarse(other) == coarse(color); });
        if (!color.isBlackOrWhite())
            best = std::min(best, Rank{-count, -countInCell, color.packed()});
    }
    EXPECT_EQ(picked.background.packed(), std::get<2>(best));
    EXPECT_NE(picked.primary.isDark(), picked.background.isDark());
    EXPECT_TRUE(picked.primary.isContrasting(picked.background));
    EXPECT_TRUE(picked.primary.isDistinct(picked.secondary));
    EXPECT_TRUE(picked.detail.isDistinct(picked.primary));
    EXPECT_TRUE(picked.detail.isDistinct(picked.secondary));
}

TEST(PalettePick, CountsColoursThatCollideInAnyBitsApart)
{
    std::vector<WKSColor> pixels;
    for (long value = 0; value < 4096; ++value)
        pixels.push_back(WKSColor::fromLong(0xFF000000 | value << 12));
    pixels.push_back(WKSColor::fromLong(0xFF7FF000));
    EXPECT_EQ(pickPalette(pixels).background, WKSColor::fromLong(0xFF7FF000));
}

}
}
