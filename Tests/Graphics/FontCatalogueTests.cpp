// Registration of fonts, their names and their metrics.
#include "SampleFonts.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace Simulator::Graphics {

using namespace Samples;

TEST(FontCatalogue, RegistersAFileUnderItsNames)
{
    FontCatalogue catalogue({});
    const auto result = catalogue.registerFile(latoBlack);
    EXPECT_TRUE(result);
    EXPECT_EQ(result.postScriptNames, std::vector<std::string>{"Lato-Black"});
    EXPECT_EQ(catalogue.familyNames(), std::vector<std::string>{"Lato"});
    ASSERT_TRUE(catalogue.find("Lato-Black"));
    EXPECT_EQ(catalogue.find("Lato-Black")->familyName(), "Lato");
    EXPECT_FALSE(catalogue.find("Lato-Black")->isSystemFont());
}

TEST(FontCatalogue, ListsFamiliesAndTheirFontsInOrder)
{
    FontCatalogue catalogue({});
    for (const auto& path : {quicksand, latoHairline, latoBlack})
        EXPECT_TRUE(catalogue.registerFile(path));
    EXPECT_EQ(catalogue.familyNames(), (std::vector<std::string>{"Lato", "Quicksand Light"}));
    EXPECT_EQ(catalogue.fontNamesForFamily("Lato"), (std::vector<std::string>{"Lato-Black", "Lato-Hairline"}));
    EXPECT_TRUE(catalogue.fontNamesForFamily("Nothing").empty());
}

TEST(FontCatalogue, RefusesAFontThatIsRegisteredAlready)
{
    TemporaryFolder folder;
    FontCatalogue catalogue({});
    EXPECT_TRUE(catalogue.registerFile(latoBlack));
    EXPECT_EQ(catalogue.registerFile(latoBlack).error, RegistrationError::alreadyRegistered);
    const auto copy = folder.write("Other.ttf", read(latoBlack));
    EXPECT_EQ(catalogue.registerFile(copy).error, RegistrationError::alreadyRegistered);
    EXPECT_EQ(catalogue.registerData(read(latoBlack)).error, RegistrationError::alreadyRegistered);
}

TEST(FontCatalogue, RefusesWhatIsNoFont)
{
    TemporaryFolder folder;
    FontCatalogue catalogue({});
    Bytes noise(5'000);
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = std::byte(i * 2'654'435'761u >> 13 & 0xFF);
    Bytes head = read(latoBlack);
    head.resize(100);
    EXPECT_EQ(catalogue.registerFile(folder.write("noise.ttf", noise)).error, RegistrationError::invalid);
    EXPECT_EQ(catalogue.registerFile(folder.write("empty.ttf", {})).error, RegistrationError::invalid);
    EXPECT_EQ(catalogue.registerFile(folder.write("cut.ttf", head)).error, RegistrationError::invalid);
    EXPECT_EQ(catalogue.registerFile(folder.path()).error, RegistrationError::fileNotFound);
    EXPECT_EQ(catalogue.registerFile(folder.path() / "none.ttf").error, RegistrationError::fileNotFound);
    EXPECT_EQ(catalogue.registerData({}).error, RegistrationError::invalid);
    EXPECT_EQ(catalogue.registerData(noise).error, RegistrationError::invalid);
    EXPECT_TRUE(catalogue.familyNames().empty());
}

TEST(FontCatalogue, RegistersEveryFaceOfACollection)
{
    TemporaryFolder folder;
    FontCatalogue catalogue({});
    const Bytes fonts[] = {read(latoBlack), read(quicksand)};
    const auto result = catalogue.registerFile(folder.write("Two.ttc", collection(fonts)));
    EXPECT_EQ(result.postScriptNames, (std::vector<std::string>{"Lato-Black", "Quicksand-Light"}));
    EXPECT_EQ(catalogue.find("Quicksand-Light")->faceIndex(), 1);
}

/// A font that is read in parts, and how much of it was read.
struct Parts {
    Bytes bytes;
    std::size_t copied = 0;
    FontParts reader()
    {
        return {bytes.size(), [this](std::size_t offset, std::span<std::byte> part) {
                    const std::size_t count = std::min(part.size(), bytes.size() - std::min(bytes.size(), offset));
                    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, part.begin());
                    copied += count;
                    return count;
                }};
    }
};

TEST(FontCatalogue, RegistersAFileOfWhichOnlyPartsAreRead)
{
    FontCatalogue inParts({});
    FontCatalogue whole({});
    Parts parts{read(latoBlack)};
    EXPECT_EQ(inParts.registerFile(latoBlack, parts.reader()).postScriptNames, std::vector<std::string>{"Lato-Black"});
    EXPECT_LT(parts.copied, parts.bytes.size() / 2);
    whole.registerFile(latoBlack);
    EXPECT_EQ(inParts.find("Lato-Black")->ascender(10), whole.find("Lato-Black")->ascender(10));
    EXPECT_EQ(inParts.find("Lato-Black")->capHeight(10), whole.find("Lato-Black")->capHeight(10));
    EXPECT_EQ(inParts.registerFile(latoBlack, parts.reader()).error, RegistrationError::alreadyRegistered);
    const Bytes fonts[] = {read(latoHairline), read(quicksand)};
    Parts two{collection(fonts)};
    EXPECT_EQ(inParts.registerFile(quicksand, two.reader()).postScriptNames,
        (std::vector<std::string>{"Lato-Hairline", "Quicksand-Light"}));
    Parts noise{Bytes(1'000, std::byte{7})};
    EXPECT_EQ(inParts.registerFile(latoHairline, noise.reader()).error, RegistrationError::invalid);
    Parts empty;
    EXPECT_EQ(inParts.registerFile(latoHairline, empty.reader()).error, RegistrationError::invalid);
}

TEST(FontCatalogue, ForgetsAnUnregisteredFileAndTakesItAgain)
{
    FontCatalogue catalogue({});
    catalogue.registerFile(latoBlack);
    catalogue.registerFile(latoHairline);
    EXPECT_EQ(catalogue.unregisterFile(latoBlack).postScriptNames, std::vector<std::string>{"Lato-Black"});
    EXPECT_FALSE(catalogue.find("Lato-Black"));
    EXPECT_EQ(catalogue.fontNamesForFamily("Lato"), std::vector<std::string>{"Lato-Hairline"});
    EXPECT_EQ(catalogue.unregisterFile(latoBlack).error, RegistrationError::notRegistered);
    EXPECT_TRUE(catalogue.registerFile(latoBlack));
}

TEST(FontCatalogue, ForgetsAFontByName)
{
    FontCatalogue catalogue({});
    catalogue.registerFile(latoBlack);
    EXPECT_TRUE(catalogue.unregisterFont("Lato-Black"));
    EXPECT_EQ(catalogue.unregisterFont("Lato-Black").error, RegistrationError::notRegistered);
    EXPECT_TRUE(catalogue.familyNames().empty());
    EXPECT_TRUE(catalogue.registerFile(latoBlack));
}

TEST(FontCatalogue, UnregistersAFileThatIsGone)
{
    TemporaryFolder folder;
    FontCatalogue catalogue({});
    const auto path = folder.write("Own.ttf", read(latoBlack));
    catalogue.registerFile(path);
    std::filesystem::remove(path);
    EXPECT_TRUE(catalogue.unregisterFile(path));
    EXPECT_FALSE(catalogue.find("Lato-Black"));
}

TEST(FontCatalogue, TellsTheNamesOfFontDataWithoutRegistering)
{
    EXPECT_EQ(FontCatalogue::namesOf(read(quicksand)), (FaceNames{"Quicksand-Light", "Quicksand Light"}));
    EXPECT_FALSE(FontCatalogue::namesOf({}));
    EXPECT_FALSE(FontCatalogue::namesOf(Bytes(1'000, std::byte{7})));
}

TEST(FontCatalogue, HoldsAThousandFonts)
{
    FontCatalogue catalogue({});
    const Bytes original = read(quicksand);
    for (int i = 1'000; i < 2'000; ++i) {
        const std::string name = "Quicksand-L" + std::to_string(i);
        ASSERT_TRUE(catalogue.registerData(renamed(original, "Quicksand-Light", name)));
    }
    const auto names = catalogue.fontNamesForFamily("Quicksand Light");
    ASSERT_EQ(names.size(), 1'000u);
    EXPECT_EQ(names.front(), "Quicksand-L1000");
    EXPECT_EQ(names.back(), "Quicksand-L1999");
}

TEST(FontCatalogue, ChoosesTheSystemFontByWeight)
{
    const FontCatalogue& catalogue = systemCatalogue();
    EXPECT_EQ(catalogue.systemFont()->postScriptName(), "Inter-Regular");
    EXPECT_EQ(catalogue.systemFont(FontWeight::semibold)->postScriptName(), "Inter-SemiBold");
    EXPECT_EQ(catalogue.systemFont(FontWeight::ultraLight)->postScriptName(), "Inter-Thin");
    EXPECT_TRUE(catalogue.systemFont()->isSystemFont());
}

TEST(FontCatalogue, HasNoSystemFontWithoutFiles)
{
    const std::filesystem::path missing[] = {"/nowhere/Font.ttf"};
    EXPECT_FALSE(FontCatalogue(missing).systemFont());
}

TEST(FontCatalogue, KeepsTheSystemsFonts)
{
    const std::filesystem::path files[] = {latoBlack};
    FontCatalogue catalogue(files);
    EXPECT_EQ(catalogue.unregisterFont("Lato-Black").error, RegistrationError::notRegistered);
    EXPECT_EQ(catalogue.registerFile(latoBlack).error, RegistrationError::alreadyRegistered);
    EXPECT_TRUE(catalogue.find("Lato-Black"));
}

TEST(Font, MetricsGrowWithTheSize)
{
    const auto font = systemCatalogue().systemFont();
    EXPECT_GT(font->ascender(10), 0);
    EXPECT_LT(font->descender(10), 0);
    EXPECT_DOUBLE_EQ(font->lineHeight(20), 2 * font->lineHeight(10));
    EXPECT_DOUBLE_EQ(font->lineHeight(10), font->ascender(10) - font->descender(10));
    EXPECT_GT(font->ascender(10), font->capHeight(10));
}

TEST(Font, MeasuresACapitalIfTheTablesDoNotTellItsHeight)
{
    FontCatalogue catalogue({});
    const Bytes told = read(latoBlack);
    catalogue.registerData(told);
    const double fromTables = catalogue.find("Lato-Black")->capHeight(100);
    catalogue.unregisterFont("Lato-Black");
    catalogue.registerData(withoutCapitalHeight(told));
    const double measured = catalogue.find("Lato-Black")->capHeight(100);
    EXPECT_GT(measured, 50);
    EXPECT_NEAR(measured, fromTables, 1);
}

}
