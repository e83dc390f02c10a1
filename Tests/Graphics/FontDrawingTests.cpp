// Text is drawn with exactly the face that it names, whatever else is registered or was drawn.
#include "SampleFonts.hpp"
#include "Screen.hpp"

#include <gtest/gtest.h>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

Layer labelIn(const std::shared_ptr<const Font>& font, std::string text)
{
    Layer layer = label({0, 0, 200, 60}, std::move(text), 40);
    textOf(layer).runs.front().font = font;
    return layer;
}

std::vector<std::uint8_t> picture(FontCatalogue& catalogue, const Layer& layer)
{
    Screen screen({200, 60}, 1, catalogue);
    screen.show(layer);
    return screen.bytes();
}

long light(FontCatalogue& catalogue, const Layer& layer)
{
    Screen screen({200, 60}, 1, catalogue);
    screen.show(layer);
    return screen.light();
}

}

TEST(FontDrawing, DrawsEachWeightOfAFamilyAsItself)
{
    FontCatalogue catalogue({});
    catalogue.registerFile(latoBlack);
    catalogue.registerFile(latoHairline);
    const long heavy = light(catalogue, labelIn(catalogue.find("Lato-Black"), "Hamburg"));
    const long thin = light(catalogue, labelIn(catalogue.find("Lato-Hairline"), "Hamburg"));
    EXPECT_GT(thin, 0);
    EXPECT_GT(heavy, 4 * thin);
}

TEST(FontDrawing, DrawsTheSameFromAFileAndFromData)
{
    FontCatalogue fromFile({});
    fromFile.registerFile(latoBlack);
    FontCatalogue fromData({});
    fromData.registerData(read(latoBlack));
    EXPECT_EQ(picture(fromFile, labelIn(fromFile.find("Lato-Black"), "09.41")),
        picture(fromData, labelIn(fromData.find("Lato-Black"), "09.41")));
}

TEST(FontDrawing, DrawsTheRightFaceOfACollection)
{
    FontCatalogue catalogue({});
    const Bytes fonts[] = {read(latoBlack), read(quicksand)};
    catalogue.registerData(collection(fonts));
    FontCatalogue alone({});
    alone.registerFile(quicksand);
    EXPECT_EQ(picture(catalogue, labelIn(catalogue.find("Quicksand-Light"), "Qs")),
        picture(alone, labelIn(alone.find("Quicksand-Light"), "Qs")));
}

TEST(FontDrawing, TakesMissingGlyphsFromTheSystemFonts)
{
    FontCatalogue& catalogue = systemCatalogue();
    if (!catalogue.find("Lato-Black")) {
        ASSERT_TRUE(catalogue.registerFile(latoBlack));
    }
    for (const char* text : {"שלום", "سلام", "สวัสดี", "時計"}) {
        const Layer inLato = labelIn(catalogue.find("Lato-Black"), text);
        const Layer missing = labelIn(catalogue.find("Lato-Black"), "\U000F0000");
        EXPECT_GT(light(catalogue, inLato), 0) << text;
        EXPECT_NE(picture(catalogue, inLato), picture(catalogue, missing)) << text;
    }
}

TEST(FontDrawing, DoesNotDependOnWhatWasDrawnBefore)
{
    const auto systemFonts = installedSystemFonts();
    FontCatalogue fresh(systemFonts);
    FontCatalogue used(systemFonts);
    for (FontCatalogue* catalogue : {&fresh, &used}) {
        catalogue->registerFile(latoBlack);
        catalogue->registerFile(quicksand);
    }
    for (const char* text : {"a", "ж", "שלום", "日本"})
        picture(used, labelIn(used.find("Lato-Black"), text));
    for (const char* text : {"Łódź ж 9 日本", "שלום 9"})
        EXPECT_EQ(picture(fresh, labelIn(fresh.find("Quicksand-Light"), text)),
            picture(used, labelIn(used.find("Quicksand-Light"), text)))
            << text;
}

TEST(FontDrawing, MixesFacesInOneText)
{
    FontCatalogue catalogue({});
    catalogue.registerFile(latoBlack);
    catalogue.registerFile(latoHairline);
    Layer mixed = labelIn(catalogue.find("Lato-Black"), "HH");
    textOf(mixed).runs.push_back({"HH", catalogue.find("Lato-Hairline"), 40, white, {}});
    const long heavy = light(catalogue, labelIn(catalogue.find("Lato-Black"), "HH"));
    const long thin = light(catalogue, labelIn(catalogue.find("Lato-Hairline"), "HH"));
    EXPECT_NEAR(light(catalogue, mixed), heavy + thin, (heavy + thin) * 0.05);
}

TEST(FontDrawing, SurvivesAFileThatIsCutShortWhileInUse)
{
    TemporaryFolder folder;
    FontCatalogue catalogue({});
    const auto path = folder.write("Own.ttf", read(latoBlack));
    catalogue.registerFile(path);
    const auto font = catalogue.find("Lato-Black");
    const auto before = picture(catalogue, labelIn(font, "Before"));
    folder.write("Own.ttf", Bytes(10));
    EXPECT_EQ(picture(catalogue, labelIn(font, "Before")), before);
    EXPECT_GT(light(catalogue, labelIn(font, "After")), 0);
}

TEST(FontDrawing, FallsBackToTheSystemFontIfTheFileIsGoneBeforeItsFirstUse)
{
    TemporaryFolder folder;
    FontCatalogue catalogue(installedSystemFonts());
    const auto path = folder.write("Own.ttf", read(quicksand));
    catalogue.registerFile(path);
    std::filesystem::remove(path);
    Layer system = labelIn(catalogue.systemFont(FontWeight::light), "9:41");
    EXPECT_EQ(picture(catalogue, labelIn(catalogue.find("Quicksand-Light"), "9:41")), picture(catalogue, system));
}

TEST(FontDrawing, DrawsAFontThatIsNoLongerRegistered)
{
    FontCatalogue catalogue({});
    catalogue.registerData(read(latoBlack));
    const auto font = catalogue.find("Lato-Black");
    const auto before = picture(catalogue, labelIn(font, "9"));
    catalogue.unregisterFont("Lato-Black");
    EXPECT_EQ(picture(catalogue, labelIn(font, "9")), before);
}

TEST(FontDrawing, ShowsManyFontsOneAfterTheOther)
{
    FontCatalogue catalogue({});
    const Bytes original = read(quicksand);
    catalogue.registerData(original);
    const auto expected = picture(catalogue, labelIn(catalogue.find("Quicksand-Light"), "Ag"));
    for (int i = 100; i < 250; ++i) {
        const std::string name = "Quicksand-Li" + std::to_string(i);
        catalogue.registerData(renamed(original, "Quicksand-Light", name));
        ASSERT_EQ(picture(catalogue, labelIn(catalogue.find(name), "Ag")), expected) << name;
    }
    EXPECT_EQ(picture(catalogue, labelIn(catalogue.find("Quicksand-Li100"), "Ag")), expected);
}

TEST(FontDrawing, DrawsNothingWithoutAnyFont)
{
    FontCatalogue catalogue({});
    EXPECT_EQ(light(catalogue, label({0, 0, 200, 60}, "9:41")), 0);
}

}
