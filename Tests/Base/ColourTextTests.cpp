// Colour texts: the colour-picker library's, and the control protocol's.
#include "Simulator/Base/ColourText.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

TEST(ColourText, HasTwoHexadecimalDigitsForEachComponent)
{
    EXPECT_EQ(colourOfText("#FF8000"), (ColourComponents{1, 128 / 255.0, 0, 1}));
    EXPECT_EQ(colourOfText("#ff8000"), (ColourComponents{1, 128 / 255.0, 0, 1}));
    EXPECT_EQ(colourOfText("ff8000"), (ColourComponents{1, 128 / 255.0, 0, 1}));
}

TEST(ColourText, MayHaveOneDigitForEachComponent)
{
    EXPECT_EQ(colourOfText("#F00"), (ColourComponents{1, 0, 0, 1}));
}

TEST(ColourText, TakesTheOpacityInAnyDecimalForm)
{
    for (const char* text : {"#FFFFFF:1.00", "#FFFFFF:1.0", "#FFFFFF:1", "#FFFFFF:1."})
        EXPECT_EQ(colourOfText(text), ColourComponents{}) << text;
    for (const char* text : {"#FFFFFF:.5", "#FFFFFF:0.5", "#FFFFFF:0.50"})
        EXPECT_EQ(colourOfText(text)->opacity, 0.5) << text;
}

TEST(ColourText, HoldsTheOpacityWithinItsBounds)
{
    EXPECT_EQ(colourOfText("#000000:7.5")->opacity, 1);
    EXPECT_EQ(colourOfText("#000000:-0.5")->opacity, 0);
}

TEST(ColourText, IsNothingElse)
{
    for (const char* text : {"", "#", "red", "#12345", "#1234567", "#GG0000", "#FFFFFF:", "#FFFFFF:nan",
             "#FFFFFF:1.0.0", "#FFFFFF:inf", "#-1-1-1", "##FFFFFF", "#FFFFFF:1 ", " #FFFFFF"})
        EXPECT_FALSE(colourOfText(text).has_value()) << text;
}

TEST(ColourText, IsWrittenInFourPairsOfDigits)
{
    EXPECT_EQ(textOfColour({1, 128 / 255.0, 0, 1}), "#FF8000FF");
    EXPECT_EQ(textOfColour({2, -1, 0.5, 0}), "#FF008000");
}
