// The colour-picker library as the shell's extensions call it.
#include "Platform/Companions/SparkColourPickerUtils.hpp"

#include "CompanionsTest.hpp"
#include "Platform/Foundation/NSDate.hpp"

#include <array>

using namespace Simulator;

namespace {

class ColourPicker : public CompanionsTest {
protected:
    using Components = std::array<CGFloat, 4>;

    static Components colour(const NS::Object& text, const NS::Object& fallback)
    {
        const auto colour
            = Spark::ColourPickerUtils::sendClass<UI::Color, "colourWithString:withFallback:">(text, fallback);
        Components components{-1, -1, -1, -1};
        EXPECT_TRUE(colour.getRed(&components[0], &components[1], &components[2], &components[3]));
        return components;
    }
};

}

TEST_F(ColourPicker, MakesTheColourOfTheText)
{
    EXPECT_EQ(colour("#FF0000:0.5"_ns, "#ffffff"_ns), (Components{1, 0, 0, 0.5}));
}

TEST_F(ColourPicker, TakesTheFallbackForWhatIsNoColourText)
{
    EXPECT_EQ(colour(NS::Object(), "#0000ff"_ns), (Components{0, 0, 1, 1}));
    EXPECT_EQ(colour("nonsense"_ns, "#0000ff"_ns), (Components{0, 0, 1, 1}));
    EXPECT_EQ(colour(NS::Date::date(), "#0000ff"_ns), (Components{0, 0, 1, 1}));
}

TEST_F(ColourPicker, IsWhiteWithoutAFallback)
{
    EXPECT_EQ(colour("nonsense"_ns, "more of it"_ns), (Components{1, 1, 1, 1}));
    EXPECT_EQ(colour(NS::Object(), NS::Object()), (Components{1, 1, 1, 1}));
}
