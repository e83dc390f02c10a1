// UIColor and CGColor.
#include "UIKitTest.hpp"

#include <cmath>

namespace Simulator {

class Color : public UIKitTest {
protected:
    using Parts = std::array<double, 4>;
    static Parts rgb(const UI::Color& color)
    {
        Parts parts{};
        EXPECT_TRUE(color.getRed(&parts[0], &parts[1], &parts[2], &parts[3]));
        return parts;
    }
    static Parts hsb(const UI::Color& color)
    {
        Parts parts{};
        EXPECT_TRUE(color.getHue(&parts[0], &parts[1], &parts[2], &parts[3]));
        return parts;
    }
    static UI::Color named(const char* name)
    {
        return ObjC::sendMessage<UI::Color>(reinterpret_cast<id>(UI::Color::type()), sel_registerName(name));
    }
};

TEST_F(Color, KeepsTheComponentsItWasGiven)
{
    EXPECT_EQ(rgb(UI::Color::colorWithRed(0.1, 0.2, 0.3, 0.4)), (Parts{0.1, 0.2, 0.3, 0.4}));
    EXPECT_EQ(rgb(UI::Color::colorWithRed(1.5, -0.25, 0, 1)), (Parts{1.5, -0.25, 0, 1}));
    EXPECT_EQ(rgb(UI::Color::whiteColor()), (Parts{1, 1, 1, 1}));
}

TEST_F(Color, GreyOnesHaveTwoComponentsAndOthersFour)
{
    const auto grey = UI::Color::sendClass<UI::Color, "colorWithWhite:alpha:">(0.25, 0.5);
    for (const auto& color : {grey, UI::Color::whiteColor(), UI::Color::blackColor(), UI::Color::clearColor()})
        EXPECT_EQ(CGColorGetNumberOfComponents(color.CGColor()), 2u);
    EXPECT_EQ(CGColorGetComponents(grey.CGColor())[0], 0.25);
    EXPECT_EQ(CGColorGetComponents(grey.CGColor())[1], 0.5);
    const auto red = named("redColor");
    EXPECT_EQ(CGColorGetNumberOfComponents(red.CGColor()), 4u);
    EXPECT_EQ(CGColorGetComponents(red.CGColor())[0], 1);
    EXPECT_EQ(CGColorGetComponents(red.CGColor())[3], 1);
}

TEST_F(Color, ACGColorIsOneAndLivesAsLongAsItsOwner)
{
    const auto color = UI::Color::colorWithRed(1, 0, 0, 1);
    const CGColorRef reference = color.CGColor();
    EXPECT_EQ(color.CGColor(), reference);
    const auto same = UI::Color::sendClass<UI::Color, "colorWithCGColor:">(reference);
    EXPECT_TRUE((same.send<bool, "isEqual:">(color)));
    EXPECT_FALSE((UI::Color::sendClass<UI::Color, "colorWithCGColor:">(CGColorRef())));
}

TEST_F(Color, NothingHasNoComponents)
{
    EXPECT_EQ(CGColorGetNumberOfComponents(nullptr), 0u);
    EXPECT_EQ(CGColorGetComponents(nullptr), nullptr);
    EXPECT_EQ(CGColorGetComponents(reinterpret_cast<CGColorRef>(("text"_ns).raw())), nullptr);
    EXPECT_FALSE(UI::Color().getRed(nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(UI::Color::whiteColor().getHue(nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Color, HueSaturationAndBrightnessBecomeRedGreenAndBlue)
{
    EXPECT_EQ(rgb(UI::Color::colorWithHue(0, 1, 1, 1)), (Parts{1, 0, 0, 1}));
    EXPECT_EQ(rgb(UI::Color::colorWithHue(1, 1, 1, 1)), (Parts{1, 0, 0, 1}));
    EXPECT_EQ(rgb(UI::Color::colorWithHue(0.5, 1, 0.5, 1)), (Parts{0, 0.5, 0.5, 1}));
    EXPECT_EQ(rgb(UI::Color::colorWithHue(0.75, 0.5, 1, 0.25)), (Parts{0.75, 0.5, 1, 0.25}));
    EXPECT_EQ(rgb(UI::Color::colorWithHue(0.3, 0, 0.7, 1)), (Parts{0.7, 0.7, 0.7, 1}));
}

TEST_F(Color, RedGreenAndBlueBecomeHueSaturationAndBrightness)
{
    EXPECT_EQ(hsb(UI::Color::colorWithRed(0, 0, 1, 1)), (Parts{2.0 / 3, 1, 1, 1}));
    EXPECT_EQ(hsb(UI::Color::colorWithRed(0.5, 0.25, 0.25, 0.5)), (Parts{0, 0.5, 0.5, 0.5}));
    EXPECT_EQ(hsb(UI::Color::blackColor()), (Parts{0, 0, 0, 1}));
    EXPECT_EQ(hsb(UI::Color::colorWithRed(1, 0, 0.5, 1))[0], 11.0 / 12);
}

TEST_F(Color, WhiteIsToldOnlyOfGreys)
{
    double white = -1, alpha = -1;
    EXPECT_TRUE((UI::Color::colorWithRed(0.5, 0.5, 0.5, 0.75).send<bool, "getWhite:alpha:">(&white, &alpha)));
    EXPECT_EQ(white, 0.5);
    EXPECT_EQ(alpha, 0.75);
    EXPECT_FALSE((UI::Color::colorWithRed(1, 0, 0, 1).send<bool, "getWhite:alpha:">(&white, &alpha)));
    EXPECT_EQ(white, 0.5);
}

TEST_F(Color, AHueThatIsNoNumberIsBlack)
{
    EXPECT_EQ(rgb(UI::Color::colorWithHue(std::nan(""), 1, 1, 1)), (Parts{0, 0, 0, 1}));
}

TEST_F(Color, EqualComponentsAreEqualColours)
{
    const auto color = UI::Color::colorWithRed(0.1, 0.2, 0.3, 1);
    const auto same = UI::Color::colorWithRed(0.1, 0.2, 0.3, 1);
    EXPECT_TRUE((color.send<bool, "isEqual:">(same)));
    EXPECT_EQ((color.send<unsigned long, "hash">()), (same.send<unsigned long, "hash">()));
    EXPECT_FALSE((color.send<bool, "isEqual:">(UI::Color::whiteColor())));
    EXPECT_FALSE((color.send<bool, "isEqual:">("text"_ns)));
    EXPECT_FALSE((UI::Color::colorWithRed(1, 1, 1, 1).send<bool, "isEqual:">(UI::Color::whiteColor())));
}

TEST_F(Color, SystemColoursFollowTheAppearance)
{
    const auto label = named("labelColor");
    EXPECT_EQ(rgb(label), (Parts{0, 0, 0, 1}));
    const CGColorRef light = label.CGColor();
    DeviceState::shared().style = InterfaceStyle::dark;
    EXPECT_EQ(rgb(label), (Parts{1, 1, 1, 1}));
    EXPECT_EQ(rgb(named("systemYellowColor")), (Parts{1, 214 / 255.0, 10 / 255.0, 1}));
    EXPECT_EQ(CGColorGetComponents(light)[0], 0);
    EXPECT_EQ(named("labelColor"), label);
}

TEST_F(Color, AnotherAlphaKeepsTheRest)
{
    const auto half = UI::Color::whiteColor().send<UI::Color, "colorWithAlphaComponent:">(0.5);
    EXPECT_EQ(CGColorGetNumberOfComponents(half.CGColor()), 2u);
    EXPECT_EQ(rgb(half), (Parts{1, 1, 1, 0.5}));
}

TEST_F(Color, ColourSpacesAreReleasedByTheirMaker)
{
    const long before = StandInRegistry::shared().liveCount("CGColorSpace");
    const CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    EXPECT_EQ(StandInRegistry::shared().liveCount("CGColorSpace"), before + 1);
    CGColorSpaceRelease(space);
    CGColorSpaceRelease(nullptr);
    EXPECT_EQ(StandInRegistry::shared().liveCount("CGColorSpace"), before);
}

}
