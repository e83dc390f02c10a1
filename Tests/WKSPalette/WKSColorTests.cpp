// The colour as a value: packing, luminance, and the comparisons of two colours.
#include "WKSPalette/WKSColor.hpp"

#include <gtest/gtest.h>

namespace LYR {
namespace {

constexpr WKSColor rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return {red, green, blue, 255};
}

TEST(WKSColor, UnpacksAlphaRedGreenAndBlueFromTheTopDown)
{
    WKSColor color = WKSColor::fromLong(0xFF102030);
    EXPECT_EQ(color.a, 255);
    EXPECT_EQ(color.r, 16);
    EXPECT_EQ(color.g, 32);
    EXPECT_EQ(color.b, 48);
}

TEST(WKSColor, PacksAHighAlphaToANegativeNumber)
{
    long packed = WKSColor::fromLong(0xFF102030).toLong();
    EXPECT_LT(packed, 0);
    EXPECT_EQ(packed & 0xFFFFFFFF, 0xFF102030);
    EXPECT_EQ(packed, -15720400);
}

TEST(WKSColor, PacksAnAlphaBelow128ToAPositiveNumber)
{
    EXPECT_EQ(WKSColor::fromLong(0x7F102030).toLong(), 0x7F102030);
    EXPECT_LT(WKSColor::fromLong(0x80102030).toLong(), 0);
    EXPECT_EQ(WKSColor::fromLong(0x00FFFFFF).toLong(), 0x00FFFFFF);
}

TEST(WKSColor, SurvivesPackingWithEveryValueOfEachChannel)
{
    for (int value = 0; value < 256; ++value) {
        auto byte = static_cast<std::uint8_t>(value);
        WKSColor color{byte, static_cast<std::uint8_t>(255 - byte), static_cast<std::uint8_t>(byte ^ 0x5A), byte};
        EXPECT_EQ(WKSColor::fromLong(color.toLong()), color);
    }
}

TEST(WKSColor, IgnoresEverythingAboveTheLow32Bits)
{
    EXPECT_EQ(WKSColor::fromLong(0x12345678'FF102030), WKSColor::fromLong(0xFF102030));
    EXPECT_EQ(WKSColor::fromLong(-1), (WKSColor{255, 255, 255, 255}));
}

TEST(WKSColor, ReplacesAllChannelsWhenAPackedValueIsSet)
{
    WKSColor color{1, 2, 3, 4};
    color.setLong(0x80FF7F00);
    EXPECT_EQ(color, (WKSColor{255, 127, 0, 128}));
}

TEST(WKSColor, HasALuminanceOfTwelveAndThreeQuartersForBlack)
{
    EXPECT_DOUBLE_EQ(rgb(0, 0, 0).lum(), 12.75);
    EXPECT_TRUE(rgb(0, 0, 0).isDark());
}

TEST(WKSColor, HasALuminanceOfTwoHundredSixtySevenAndThreeQuartersForWhite)
{
    EXPECT_DOUBLE_EQ(rgb(255, 255, 255).lum(), 267.75);
    EXPECT_FALSE(rgb(255, 255, 255).isDark());
}

TEST(WKSColor, WeighsGreenMostAndBlueLeast)
{
    EXPECT_DOUBLE_EQ(rgb(100, 0, 0).lum(), 21.26 + 12.75);
    EXPECT_DOUBLE_EQ(rgb(0, 100, 0).lum(), 71.52 + 12.75);
    EXPECT_DOUBLE_EQ(rgb(0, 0, 100).lum(), 7.22 + 12.75);
}

TEST(WKSColor, TurnsLightBetweenGrey101AndGrey103)
{
    EXPECT_TRUE(rgb(101, 101, 101).isDark());
    EXPECT_FALSE(rgb(103, 103, 103).isDark());
}

TEST(WKSColor, JudgesLuminanceWithoutRegardToAlpha)
{
    EXPECT_DOUBLE_EQ((WKSColor{10, 20, 30, 0}).lum(), (WKSColor{10, 20, 30, 255}).lum());
}

TEST(WKSColor, IsWhiteOnlyWithAllChannelsAbove232)
{
    EXPECT_TRUE(rgb(233, 233, 233).isBlackOrWhite());
    EXPECT_FALSE(rgb(232, 233, 233).isBlackOrWhite());
    EXPECT_FALSE(rgb(233, 232, 233).isBlackOrWhite());
    EXPECT_FALSE(rgb(233, 233, 232).isBlackOrWhite());
}

TEST(WKSColor, IsBlackOnlyWithAllChannelsBelow23)
{
    EXPECT_TRUE(rgb(22, 22, 22).isBlackOrWhite());
    EXPECT_FALSE(rgb(23, 22, 22).isBlackOrWhite());
    EXPECT_FALSE(rgb(22, 23, 22).isBlackOrWhite());
    EXPECT_FALSE(rgb(22, 22, 23).isBlackOrWhite());
}

TEST(WKSColor, IsNeitherBlackNorWhiteWithChannelsAtBothEnds)
{
    EXPECT_FALSE(rgb(255, 0, 255).isBlackOrWhite());
}

TEST(WKSColor, FindsTwoGreysNotDistinctHoweverFarApart)
{
    EXPECT_FALSE(rgb(10, 12, 15).isDistinct(rgb(200, 201, 205)));
    EXPECT_FALSE(rgb(0, 0, 0).isDistinct(rgb(255, 255, 255)));
}

TEST(WKSColor, FindsAGreyAndASaturatedColourFarApartDistinct)
{
    EXPECT_TRUE(rgb(10, 12, 15).isDistinct(rgb(200, 20, 20)));
    EXPECT_TRUE(rgb(200, 20, 20).isDistinct(rgb(10, 12, 15)));
}

TEST(WKSColor, NeedsADifferenceOf64InOneChannelToBeDistinct)
{
    WKSColor base = rgb(100, 20, 20);
    EXPECT_FALSE(base.isDistinct(base));
    EXPECT_FALSE(base.isDistinct(rgb(163, 83, 83)));
    EXPECT_TRUE(base.isDistinct(rgb(164, 20, 20)));
    EXPECT_TRUE(base.isDistinct(rgb(36, 20, 20)));
    EXPECT_TRUE(base.isDistinct(rgb(100, 84, 20)));
    EXPECT_TRUE(base.isDistinct(rgb(100, 20, 84)));
}

TEST(WKSColor, CountsAsGreyWithGreenAndBlueWithinSixOfRed)
{
    WKSColor grey = rgb(10, 10, 10);
    EXPECT_FALSE(rgb(200, 206, 194).isDistinct(grey));
    EXPECT_TRUE(rgb(200, 207, 200).isDistinct(grey));
    EXPECT_TRUE(rgb(200, 200, 207).isDistinct(grey));
}

TEST(WKSColor, MeasuresDistanceBetweenTheEndsOfTheScaleWithoutWrapping)
{
    EXPECT_TRUE(rgb(0, 100, 0).isDistinct(rgb(255, 100, 0)));
}

TEST(WKSColor, FindsBlackAndWhiteContrasting)
{
    EXPECT_TRUE(rgb(0, 0, 0).isContrasting(rgb(255, 255, 255)));
    EXPECT_TRUE(rgb(255, 255, 255).isContrasting(rgb(0, 0, 0)));
}

TEST(WKSColor, FindsLuminancesInARatioOfOneAndAHalfNotContrasting)
{
    WKSColor darker = rgb(87, 87, 87);
    WKSColor lighter = rgb(137, 137, 137);
    EXPECT_NEAR(darker.lum(), 100, 0.5);
    EXPECT_NEAR(lighter.lum(), 150, 0.5);
    EXPECT_FALSE(darker.isContrasting(lighter));
    EXPECT_FALSE(lighter.isContrasting(darker));
}

TEST(WKSColor, ContrastsFromJustAboveARatioOfOnePointSix)
{
    WKSColor base = rgb(87, 87, 87);
    EXPECT_FALSE(base.isContrasting(rgb(146, 146, 146)));
    EXPECT_TRUE(base.isContrasting(rgb(148, 148, 148)));
    EXPECT_FALSE(base.isContrasting(base));
}

}
}
