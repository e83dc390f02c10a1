// The choice of four colours from the pixels of a picture.
#include "WKSPalette/PalettePick.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>
#include <vector>

namespace LYR {

/// Failed expectations show the packed colours.
void PrintTo(const PickedColors& colors, std::ostream* stream)
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

PickedColors pick(std::initializer_list<Patch> patches)
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
    EXPECT_EQ(pick({{navy, 50}, {wine, 40}, {sky, 3}, {rose, 9}, {lime, 6}}), (PickedColors{navy, rose, lime, sky}));
    EXPECT_EQ(
        pick({{rose, 50}, {lime, 40}, {forest, 3}, {navy, 9}, {wine, 6}}), (PickedColors{rose, navy, wine, forest}));
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
        pick({{navy, 50}, {rose, 9}, {almostRose, 8}, {lime, 6}, {sky, 3}}), (PickedColors{navy, rose, lime, sky}));
}

TEST(PalettePick, FindsTheDetailDistinctFromPrimaryAndSecondary)
{
    WKSColor almostRose = rgb(240, 160, 180);
    WKSColor almostLime = rgb(180, 230, 70);
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}, {lime, 8}, {almostRose, 7}, {almostLime, 6}, {sky, 1}}),
        (PickedColors{navy, rose, lime, sky}));
}

TEST(PalettePick, FillsMissingTextColoursWithWhiteOnADarkBackground)
{
    EXPECT_EQ(pick({{navy, 50}, {wine, 9}}), (PickedColors{navy, white, white, white}));
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}}), (PickedColors{navy, rose, white, white}));
    EXPECT_EQ(pick({{navy, 50}, {rose, 9}, {lime, 8}}), (PickedColors{navy, rose, lime, white}));
}

TEST(PalettePick, FillsMissingTextColoursWithBlackOnALightBackground)
{
    EXPECT_EQ(pick({{rose, 50}, {lime, 9}}), (PickedColors{rose, black, black, black}));
    EXPECT_EQ(pick({{rose, 50}, {navy, 9}}), (PickedColors{rose, navy, black, black}));
}

TEST(PalettePick, AnswersForASingleColour)
{
    EXPECT_EQ(pick({{navy, 1350}}), (PickedColors{navy, white, white, white}));
    EXPECT_EQ(pick({{black, 1350}}), (PickedColors{black, white, white, white}));
    EXPECT_EQ(pick({{white, 1350}}), (PickedColors{white, black, black, black}));
}

TEST(PalettePick, AnswersForASinglePixel)
{
    EXPECT_EQ(pick({{rose, 1}}), (PickedColors{rose, black, black, black}));
}

TEST(PalettePick, TreatsNoPixelsAsBlack)
{
    EXPECT_EQ(pickPalette({}), (PickedColors{black, white, white, white}));
}

TEST(PalettePick, TreatsATransparentPictureAsTheTransparentBlackThatItIs)
{
    WKSColor nothing{};
    EXPECT_EQ(pick({{nothing, 300}}), (PickedColors{nothing, white, white, white}));
}

TEST(PalettePick, CountsEqualChannelsOfDifferentAlphaApart)
{
    WKSColor faintWine{110, 20, 30, 128};
    EXPECT_EQ(pick({{wine, 4}, {faintWine, 4}, {navy, 5}}).background, navy);
}

TEST(PalettePick, TakesTheSmallerPackedValueOfEquallyFrequentColours)
{
    EXPECT_EQ(pick({{wine, 5}, {forest, 5}, {navy, 5}}).background, forest);
    EXPECT_EQ(pick({{navy, 50}, {rose, 5}, {lime, 5}, {sky, 5}}), (PickedColors{navy, sky, lime, rose}));
}

TEST(PalettePick, TakesASmallerPackedValueWithHighAlphaAfterOneWithLowAlpha)
{
    WKSColor faintWine{110, 20, 30, 100};
    EXPECT_EQ(pick({{navy, 5}, {faintWine, 5}}).background, faintWine);
}

TEST(PalettePick, DoesNotDependOnTheOrderOfThePixels)
{
    std::vector<WKSColor> pixels
        = picture({{navy, 40}, {wine, 40}, {rose, 7}, {lime, 7}, {sky, 7}, {white, 100}, {black, 100}, {forest, 40}});
    PickedColors expected = pickPalette(pixels);
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
    std::mt19937 random(7);
    std::vector<WKSColor> pixels;
    for (int i = 0; i < 1350; ++i)
        pixels.push_back(WKSColor::fromLong(0xFF000000 | (random() & 0x00C0E0C0)));
    PickedColors picked = pickPalette(pixels);

    WKSColor slowest;
    long slowestCount = 0;
    for (WKSColor color : pixels) {
        long count = std::count(pixels.begin(), pixels.end(), color);
        bool better = count > slowestCount || (count == slowestCount && color.packed() < slowest.packed());
        if (!color.isBlackOrWhite() && better) {
            slowest = color;
            slowestCount = count;
        }
    }
    EXPECT_EQ(picked.background, slowest);
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
