// What `lyr render` and `lyr preview` say of files that a phone takes without a word.
#include "Simulator/Control/PropertyList.hpp"
#include "Tests/Graphics/SamplePictures.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using namespace Support;
using Simulator::Control::propertyListXml;

namespace {

constexpr const char* lato = "/usr/share/fonts/truetype/lato/Lato-Bold.ttf";

class StartDoubts : public testing::Test {
protected:
    Finished render(std::vector<std::string> options)
    {
        std::vector<std::string> arguments{"render", "-o", folder.at("lock.png")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runProgram(arguments);
    }

    void expectSilence(const std::string& option, const std::string& path)
    {
        const Finished finished = render({option, path, "--strict"});
        EXPECT_EQ(finished.status, 0) << path;
        EXPECT_EQ(finished.errors, "");
    }

    /// In a line of its own, and the picture comes all the same; but not where everything has to be right.
    void expectDoubt(const std::string& option, const std::string& path, const std::string& doubt)
    {
        const Finished finished = render({option, path});
        EXPECT_EQ(finished.status, 0);
        EXPECT_EQ(finished.output, folder.at("lock.png") + "\n");
        EXPECT_EQ(finished.errors, "lyr: " + path + ": " + doubt + "\n");
        std::filesystem::remove(folder.at("lock.png"));

        const Finished refused = render({option, path, "--strict"});
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.output, "");
        EXPECT_EQ(refused.errors, finished.errors);
        EXPECT_FALSE(folder.has("lock.png"));
    }

    std::string jpegOf(std::size_t bytes)
    {
        using namespace Simulator::Graphics::Samples;
        const auto whole = jpeg(64, 64, quarters(64, 64));
        return {reinterpret_cast<const char*>(whole.data()), std::min(bytes, whole.size())};
    }

    TemporaryFolder folder;
};

}

TEST_F(StartDoubts, AreNoneAboutKeysThatTheExtensionReads)
{
    const Json settings{{"enabled", true}, {"timeFormat", "HH:mm"}, {"customFontPickerTime", "Lato-Bold"}};
    expectSilence("--settings", folder.put("s.json", settings.dump()));
    expectSilence("--settings", folder.put("s.plist", propertyListXml(settings)));
    expectSilence("--colours", folder.put("c.json", R"({"colourTime": "#FFFFFF"})"));
}

TEST_F(StartDoubts, NameAnUnknownSetting)
{
    const Json settings{{"enabled", true}, {"enabeld", true}};
    const std::string doubt = "unknown setting \"enabeld\", which the extension does not read";
    expectDoubt("--settings", folder.put("s.json", settings.dump()), doubt);
    expectDoubt("--settings", folder.put("s.plist", propertyListXml(settings)), doubt);
    expectDoubt("--settings", folder.put("c.json", R"({"colourTime": "#FFFFFF"})"),
        "unknown setting \"colourTime\", which the extension does not read");
}

TEST_F(StartDoubts, NameAnUnknownColour)
{
    expectDoubt("--colours", folder.put("c.json", R"({"colourTime": "#FFFFFF", "colourSky": "#FFFFFF"})"),
        "unknown colour \"colourSky\", which the extension does not read");
}

TEST_F(StartDoubts, NameSeveralKeysInOneLineAndCountTheRest)
{
    expectDoubt("--settings", folder.put("two.json", R"({"a": 1, "b\n": 1})"),
        "unknown settings \"a\", \"b\\n\", which the extension does not read");
    expectDoubt("--settings", folder.put("s.json", R"({"a": 1, "b": 1, "c": 1, "d": 1, "e": 1, "f": 1, "g": 1})"),
        "unknown settings \"a\", \"b\", \"c\", \"d\", \"e\" and 2 more, which the extension does not read");
}

TEST_F(StartDoubts, NameADamagedWallpaper)
{
    const std::string doubt = "the picture is damaged; the phone cannot show it";
    expectSilence("--wallpaper", folder.put("whole.jpg", jpegOf(1'000'000)));
    expectDoubt("--wallpaper", folder.put("half.jpg", jpegOf(jpegOf(1'000'000).size() / 2)), doubt);
    expectDoubt("--wallpaper", folder.put("head.jpg", jpegOf(4)), doubt);
}

TEST_F(StartDoubts, NameADamagedFont)
{
    const std::string doubt = "no font, or a damaged one; the phone leaves it out";
    expectSilence("--font", lato);
    expectDoubt("--font", folder.put("words.ttf", "no font"), doubt);
    expectDoubt("--font", folder.put("empty.ttf", ""), doubt);
}

TEST_F(StartDoubts, HaveALineEach)
{
    const std::string settings = folder.put("s.json", R"({"a": 1})");
    const std::string font = folder.put("f.ttf", "no font");
    const Finished finished = render({"--settings", settings, "--font", font});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.errors,
        "lyr: " + settings + ": unknown setting \"a\", which the extension does not read\nlyr: " + font
            + ": no font, or a damaged one; the phone leaves it out\n");
}

TEST_F(StartDoubts, EndAStrictPreviewBeforeItBegins)
{
    const std::string settings = folder.put("s.json", R"({"a": 1})");
    const Finished finished
        = runProgram({"preview", "--root", folder.at("phone"), "--settings", settings, "--strict"});
    EXPECT_EQ(finished.status, 1);
    EXPECT_EQ(finished.errors, "lyr: " + settings + ": unknown setting \"a\", which the extension does not read\n");
    EXPECT_FALSE(folder.has("phone"));
}
