// The classes WKSColor and WKSPalette by message, and the conversions from and to the platform's colours.
#include "Objects.hpp"

#include "Simulator/Runtime/StandInRegistry.hpp"
#include "WKSPalette/WKSColor.hpp"

#include <cmath>

namespace LYR {
namespace {

class WKSColorClass : public ObjectTest { };
class WKSPaletteClass : public ObjectTest { };

TEST_F(WKSColorClass, UnpacksAndPacks)
{
    ColorObject color = ColorObject::fromLong(0xFF102030);
    ASSERT_TRUE(color);
    EXPECT_EQ((color.send<std::uint8_t, "a">()), 255);
    EXPECT_EQ((color.send<std::uint8_t, "r">()), 16);
    EXPECT_EQ((color.send<std::uint8_t, "g">()), 32);
    EXPECT_EQ((color.send<std::uint8_t, "b">()), 48);
    EXPECT_EQ(color.toLong(), -15720400);
}

TEST_F(WKSColorClass, BeginsAsTransparentBlack)
{
    EXPECT_EQ(ColorObject::make().toLong(), 0);
}

TEST_F(WKSColorClass, TakesEachChannelByItself)
{
    ColorObject color = ColorObject::make();
    color.send<void, "setR:">(std::uint8_t{1});
    color.send<void, "setG:">(std::uint8_t{200});
    color.send<void, "setB:">(std::uint8_t{3});
    color.send<void, "setA:">(std::uint8_t{4});
    EXPECT_EQ(color.toLong(), 0x0401C803);
}

TEST_F(WKSColorClass, AnswersKeyValueAccess)
{
    ColorObject color = ColorObject::fromLong(0xFF10C830);
    EXPECT_EQ((color.valueForKey<NS::Object>("g"_ns).send<int, "intValue">()), 200);
}

TEST_F(WKSColorClass, TakesAllChannelsFromAPackedValue)
{
    ColorObject color = ColorObject::fromLong(0xFF102030);
    color.send<void, "setLong:">(0x01020304L);
    EXPECT_EQ(color.toLong(), 0x01020304);
}

TEST_F(WKSColorClass, TruncatesTheComponentsOfAPlatformColour)
{
    auto color = ColorObject::sendClass<ColorObject, "fromUIColor:">(UI::Color::colorWithRed(0.5, 0.999, 0.1, 1));
    EXPECT_EQ(color.toLong() & 0xFFFFFFFF, 0xFF7FFE19);
}

TEST_F(WKSColorClass, GivesTransparentBlackForAColourThatIsNone)
{
    EXPECT_EQ((ColorObject::sendClass<ColorObject, "fromUIColor:">(UI::Color()).toLong()), 0);
    EXPECT_EQ((ColorObject::sendClass<ColorObject, "fromUIColor:">("red"_ns).toLong()), 0);
}

TEST_F(WKSColorClass, ReadsAGreyColour)
{
    auto grey = UI::Color::sendClass<UI::Color, "colorWithWhite:alpha:">(0.5, 1.0);
    EXPECT_EQ(WKSColor::fromUIColor(grey), (WKSColor{127, 127, 127, 255}));
}

TEST_F(WKSColorClass, BecomesAPlatformColour)
{
    ColorObject color = ColorObject::fromLong(0x80102030);
    expectColor(color.send<UI::Color, "uicolor">(), 0x102030, 128 / 255.0);
    expectColor(color.send<UI::Color, "uicolorWithAlpha:">(0.25), 0x102030, 0.25);
}

TEST_F(WKSColorClass, HasTheLuminanceOfItsValue)
{
    ColorObject white = ColorObject::fromLong(0xFFFFFFFF);
    EXPECT_DOUBLE_EQ((white.send<double, "lum">()), 267.75);
    EXPECT_FALSE((white.send<bool, "isDark">()));
    EXPECT_TRUE((white.send<bool, "isBlackOrWhite">()));
    ColorObject wine = ColorObject::fromLong(0xFF6E141E);
    EXPECT_TRUE((wine.send<bool, "isDark">()));
    EXPECT_FALSE((wine.send<bool, "isBlackOrWhite">()));
}

TEST_F(WKSColorClass, ComparesWithAnotherColour)
{
    ColorObject black = ColorObject::fromLong(0xFF000000);
    ColorObject white = ColorObject::fromLong(0xFFFFFFFF);
    ColorObject wine = ColorObject::fromLong(0xFF6E141E);
    EXPECT_TRUE((black.send<bool, "isContrasting:">(white)));
    EXPECT_FALSE((black.send<bool, "isContrasting:">(black)));
    EXPECT_FALSE((black.send<bool, "isDistinct:">(white)));
    EXPECT_TRUE((black.send<bool, "isDistinct:">(wine)));
}

TEST_F(WKSColorClass, NeitherContrastsWithNorIsDistinctFromWhatIsNoColour)
{
    ColorObject wine = ColorObject::fromLong(0xFF6E141E);
    for (const ObjC::Object& other :
        {ObjC::Object(), ObjC::Object("white"_ns), ObjC::Object(wine.send<UI::Color, "uicolor">())}) {
        EXPECT_FALSE((wine.send<bool, "isContrasting:">(other)));
        EXPECT_FALSE((wine.send<bool, "isDistinct:">(other)));
    }
}

TEST_F(WKSColorClass, ReturnsItselfWhenSaturatedEnough)
{
    ColorObject half = ColorObject::fromLong(0xFFC86464);
    EXPECT_EQ((half.send<ColorObject, "saturate:">(0.15)), half);
    EXPECT_EQ((half.send<ColorObject, "saturate:">(0.5)), half);
    EXPECT_EQ((half.send<ColorObject, "saturate:">(-0.1)), half);
}

TEST_F(WKSColorClass, ReturnsANewColourWithRaisedSaturation)
{
    ColorObject half = ColorObject::fromLong(0xFFC86464);
    auto full = half.send<ColorObject, "saturate:">(1.0);
    EXPECT_FALSE(full == half);
    EXPECT_EQ(full.toLong() & 0xFFFFFFFF, 0xFFC80000);
    EXPECT_EQ(half.toLong() & 0xFFFFFFFF, 0xFFC86464);
}

TEST_F(WKSColorClass, KeepsAlphaWhenSaturationIsRaised)
{
    EXPECT_EQ(WKSColor::fromLong(0x80C86464).saturate(1.0).a, 128);
}

TEST_F(WKSColorClass, LeavesAValueUnchangedThatIsSaturatedEnough)
{
    WKSColor half = WKSColor::fromLong(0xFFC86464);
    EXPECT_EQ(half.saturate(0.15), half);
    EXPECT_EQ(half.saturate(1.0), WKSColor::fromLong(0xFFC80000));
    EXPECT_EQ(half.saturate(std::nan("")), half);
}

TEST_F(WKSColorClass, SurvivesEveryChannelThroughAPlatformColour)
{
    // 255 × (v / 255) may fall just short of v: the truncation then loses one step, and never more.
    for (int value = 0; value < 256; ++value) {
        auto byte = static_cast<std::uint8_t>(value);
        int back = WKSColor::fromUIColor(WKSColor{byte, byte, byte, 255}.uicolor()).r;
        EXPECT_LE(back, value);
        EXPECT_GE(back, value - 1);
    }
}

TEST_F(WKSColorClass, CanBeRegisteredAgain)
{
    Class before = ColorObject::type();
    registerWKSPalette();
    EXPECT_EQ(objc_getClass("WKSColor"), before);
    EXPECT_EQ(ColorObject::fromLong(7).toLong(), 7);
}

TEST_F(WKSPaletteClass, BeginsEmpty)
{
    WKSPalette palette = WKSPalette::make();
    EXPECT_FALSE(palette.background());
    EXPECT_FALSE(palette.primary());
    EXPECT_FALSE(palette.secondary());
    EXPECT_FALSE(palette.detail());
}

TEST_F(WKSPaletteClass, KeepsFourColoursApart)
{
    WKSPalette palette = WKSPalette::make();
    UI::Color colors[4];
    for (int i = 0; i < 4; ++i)
        colors[i] = UI::Color::colorWithRed(i / 4.0, 0, 0, 1);
    palette.setBackground(colors[0]);
    palette.setPrimary(colors[1]);
    palette.setSecondary(colors[2]);
    palette.setDetail(colors[3]);
    EXPECT_EQ(palette.background(), colors[0]);
    EXPECT_EQ(palette.primary(), colors[1]);
    EXPECT_EQ(palette.secondary(), colors[2]);
    EXPECT_EQ(palette.detail(), colors[3]);
}

TEST_F(WKSPaletteClass, TakesNilAndNothingThatIsNoColour)
{
    WKSPalette palette = WKSPalette::make();
    palette.setPrimary(UI::Color::colorWithRed(1, 0, 0, 1));
    palette.send<void, "setPrimary:">("red"_ns);
    EXPECT_FALSE(palette.primary());
    palette.setPrimary(UI::Color::colorWithRed(1, 0, 0, 1));
    palette.setPrimary(UI::Color());
    EXPECT_FALSE(palette.primary());
}

TEST_F(WKSPaletteClass, OwnsItsColoursAndReleasesThemWhenItGoes)
{
    long before = Simulator::StandInRegistry::shared().liveCount("UIColor");
    auto colorsAlive = [&] { return Simulator::StandInRegistry::shared().liveCount("UIColor") - before; };
    WKSPalette palette;
    {
        ObjC::AutoreleasePool inner;
        palette = WKSPalette::make();
        palette.setBackground(UI::Color::colorWithRed(0.1, 0, 0, 1));
        palette.setPrimary(UI::Color::colorWithRed(0.2, 0, 0, 1));
        palette.setDetail(UI::Color::colorWithRed(0.3, 0, 0, 1));
        palette.setDetail(UI::Color::colorWithRed(0.4, 0, 0, 1));
    }
    EXPECT_EQ(colorsAlive(), 3);
    palette = nullptr;
    EXPECT_EQ(colorsAlive(), 0);
}

TEST_F(WKSPaletteClass, KeepsAColourThatIsSetAgain)
{
    WKSPalette palette = WKSPalette::make();
    {
        ObjC::AutoreleasePool inner;
        palette.setDetail(UI::Color::colorWithRed(0.4, 0, 0, 1));
        palette.setDetail(palette.detail());
    }
    expectColor(palette.detail(), 0x660000, 1);
}

}
}
