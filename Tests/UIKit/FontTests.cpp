// UIFont, and fonts that come and go while the phone runs.
#include "PhoneRoot.hpp"
#include "Platform/CoreText/CTFontManager.hpp"
#include "Platform/Foundation/NSURL.hpp"

#include <fstream>
#include <iterator>

namespace Simulator {

using Provider = CF::Owned<CGDataProviderRef, CGDataProviderRelease>;
using GraphicsFont = CF::Owned<CGFontRef, CGFontRelease>;

class Fonts : public PhoneRoot {
protected:
    static constexpr const char* hostFile = "/usr/share/fonts/truetype/roboto/unhinted/RobotoTTF/Roboto-Black.ttf";
    static constexpr const char* phoneFile = "/Library/Application Support/LYRFont/Face.ttf";

    Fonts()
    {
        setUpFonts(Graphics::installedSystemFonts());
        std::ifstream file(hostFile, std::ios::binary);
        const std::vector<char> content{std::istreambuf_iterator(file), {}};
        fontData = NS::Data::dataWithBytes(content.data(), content.size());
        PhoneFiles::shared().put(phoneFile, {content.data(), content.size()});
    }
    static GraphicsFont graphicsFont(const NS::Data& data)
    {
        const Provider provider(CGDataProviderCreateWithCFData(data.raw()));
        return GraphicsFont(CGFontCreateWithDataProvider(provider.get()));
    }
    /// The error's text, which the test then owns no more.
    static std::string described(id error)
    {
        const auto text = NS::String::adopting(CFErrorCopyDescription(error));
        CFRelease(error);
        return textOf(text);
    }
    static NS::URL urlOf(const char* path) { return NS::URL::fileURLWithPath(NS::String::fromUTF8(path)); }
    static bool isKnown() { return static_cast<bool>(UI::Font::fontWithName("Roboto-Black"_ns, 20)); }

    NS::Data fontData;
};

TEST_F(Fonts, TheSystemFontHasItsSizeAndAWeight)
{
    const auto font = UI::Font::systemFontOfSize(20);
    ASSERT_TRUE(font);
    EXPECT_EQ(font.pointSize(), 20);
    EXPECT_GT(font.capHeight(), 10);
    EXPECT_LT(font.capHeight(), 20);
    EXPECT_GT(font.lineHeight(), 20);
    EXPECT_EQ(font.lineHeight(), (font.send<double, "ascender">() - font.send<double, "descender">()));
    const auto bold = UI::Font::sendClass<UI::Font, "systemFontOfSize:weight:">(20.0, 0.4);
    EXPECT_NE(textOf(bold.fontName()), textOf(font.fontName()));
    EXPECT_EQ(textOf(bold.familyName()), textOf(font.familyName()));
    EXPECT_TRUE((UI::Font::sendClass<UI::Font, "boldSystemFontOfSize:">(20.0)));
}

TEST_F(Fonts, AFontOfNoSizeGetsTheFallback)
{
    EXPECT_EQ(UI::Font::systemFontOfSize(0).pointSize(), 12);
    EXPECT_EQ(UI::Font::systemFontOfSize(-3).pointSize(), 12);
    EXPECT_EQ(UI::Font::systemFontOfSize(HUGE_VAL).pointSize(), 12);
}

TEST_F(Fonts, AnUnknownNameIsNoFont)
{
    EXPECT_FALSE(UI::Font::fontWithName("NoSuchFont-Regular"_ns, 20));
    EXPECT_ANY_THROW(UI::Font::fontWithName({}, 20));
    EXPECT_ANY_THROW(UI::Font::fontWithName(NS::String(UI::Color::whiteColor().raw()), 20));
    EXPECT_EQ(UI::Font::fontNamesForFamilyName({}).count(), 0u);
    EXPECT_EQ(UI::Font::fontNamesForFamilyName("NoSuchFamily"_ns).count(), 0u);
}

TEST_F(Fonts, EveryFamilyHasFontsThatCanBeMade)
{
    const auto families = UI::Font::familyNames();
    ASSERT_GT(families.count(), 0u);
    for (unsigned long i = 0; i < families.count(); ++i) {
        const auto names = UI::Font::fontNamesForFamilyName(families.at<NS::String>(i));
        ASSERT_GT(names.count(), 0u);
        EXPECT_TRUE(UI::Font::fontWithName(names.at<NS::String>(0), 10));
    }
}

TEST_F(Fonts, DataThatIsAFontNamesIt)
{
    const auto font = graphicsFont(fontData);
    ASSERT_TRUE(font);
    EXPECT_EQ(textOf(NS::String::adopting(CGFontCopyPostScriptName(font.get()))), "Roboto-Black");
    const CTFontRef sized = CTFontCreateWithGraphicsFont(font.get(), 0, nullptr, nullptr);
    EXPECT_EQ(textOf(NS::String::adopting(CTFontCopyFamilyName(sized))), "Roboto");
    CFRelease(sized);
}

TEST_F(Fonts, DataThatIsNoFontMakesNone)
{
    EXPECT_FALSE(graphicsFont(dataOf(png(1, 1))));
    EXPECT_FALSE(graphicsFont(NS::Data::dataWithBytes("", 0)));
    EXPECT_EQ(CGDataProviderCreateWithCFData(nullptr), nullptr);
    EXPECT_EQ(CGDataProviderCreateWithCFData(("text"_ns).raw()), nullptr);
    EXPECT_EQ(CGFontCreateWithDataProvider(nullptr), nullptr);
    EXPECT_EQ(CGFontCopyPostScriptName(nullptr), nullptr);
    EXPECT_EQ(CTFontCreateWithGraphicsFont(nullptr, 10, nullptr, nullptr), nullptr);
    EXPECT_EQ(CTFontCopyFamilyName(nullptr), nullptr);
    EXPECT_EQ(CFErrorCopyDescription(nullptr), nullptr);
    CFRelease(nullptr);
}

TEST_F(Fonts, ARegisteredFontCanBeMadeByItsName)
{
    EXPECT_FALSE(isKnown());
    const auto font = graphicsFont(fontData);
    id error = nullptr;
    EXPECT_TRUE(CTFontManagerRegisterGraphicsFont(font.get(), &error));
    EXPECT_EQ(error, nullptr);
    EXPECT_TRUE(isKnown());
    EXPECT_EQ(ActivityLog::shared().take(),
        ActivityLog::Fields::parse(R"([{"at":0.0,"kind":"registerFont","name":"Roboto-Black","ok":true}])"));
}

TEST_F(Fonts, ASecondRegistrationFailsAndSaysWhy)
{
    const auto font = graphicsFont(fontData);
    EXPECT_TRUE(CTFontManagerRegisterGraphicsFont(font.get(), nullptr));
    id error = nullptr;
    EXPECT_FALSE(CTFontManagerRegisterGraphicsFont(font.get(), &error));
    ASSERT_NE(error, nullptr);
    const std::string text = described(error);
    EXPECT_NE(text.find("error 105"), std::string::npos) << text;
    EXPECT_NE(text.find("Roboto-Black"), std::string::npos) << text;
    EXPECT_FALSE(CTFontManagerRegisterGraphicsFont(font.get(), nullptr));
    EXPECT_FALSE(CTFontManagerRegisterGraphicsFont(nullptr, nullptr));
    EXPECT_EQ(ActivityLog::shared().take().size(), 4u);
}

TEST_F(Fonts, AFileIsRegisteredUnregisteredAndRegisteredAgain)
{
    const auto url = urlOf(phoneFile);
    EXPECT_TRUE(CTFontManagerRegisterFontsForURL(url.raw(), CTFontManagerScope::process, nullptr));
    EXPECT_TRUE(isKnown());
    id error = nullptr;
    EXPECT_FALSE(CTFontManagerRegisterFontsForURL(url.raw(), CTFontManagerScope::process, &error));
    EXPECT_NE(described(error).find("error 105"), std::string::npos);
    EXPECT_TRUE(CTFontManagerUnregisterFontsForURL(url.raw(), CTFontManagerScope::process, nullptr));
    EXPECT_FALSE(isKnown());
    EXPECT_FALSE(CTFontManagerUnregisterFontsForURL(url.raw(), CTFontManagerScope::process, &error));
    EXPECT_NE(described(error).find("error 201"), std::string::npos);
    EXPECT_TRUE(CTFontManagerRegisterFontsForURL(url.raw(), CTFontManagerScope::process, nullptr));
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0]["path"], phoneFile);
    EXPECT_EQ(records[1]["ok"], false);
}

TEST_F(Fonts, AFileThatCannotBeReadIsNotRegistered)
{
    id error = nullptr;
    EXPECT_FALSE(
        CTFontManagerRegisterFontsForURL(urlOf("/Library/None.ttf").raw(), CTFontManagerScope::process, &error));
    EXPECT_NE(described(error).find("error 101"), std::string::npos);
    put("/Library/Picture.ttf", png(1, 1));
    EXPECT_FALSE(
        CTFontManagerRegisterFontsForURL(urlOf("/Library/Picture.ttf").raw(), CTFontManagerScope::process, &error));
    EXPECT_NE(described(error).find("error 104"), std::string::npos);
    PhoneFiles::shared().setFault(phoneFile, FileOperation::read, EACCES);
    EXPECT_FALSE(CTFontManagerRegisterFontsForURL(urlOf(phoneFile).raw(), CTFontManagerScope::process, nullptr));
    EXPECT_FALSE(CTFontManagerRegisterFontsForURL(nullptr, CTFontManagerScope::process, nullptr));
    EXPECT_FALSE(CTFontManagerRegisterFontsForURL(UI::Color::whiteColor().raw(), CTFontManagerScope::process, nullptr));
}

TEST_F(Fonts, NothingOfThemLeaks)
{
    const long before = StandInRegistry::shared().liveCount("CGFont");
    graphicsFont(fontData);
    EXPECT_EQ(StandInRegistry::shared().liveCount("CGFont"), before);
    EXPECT_EQ(StandInRegistry::shared().liveCount("CGDataProvider"), 0);
}

}
