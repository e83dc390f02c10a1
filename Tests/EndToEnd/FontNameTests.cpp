// User fonts whose names are close to one another, and the order in which all fonts are registered.
#include "Tests/EndToEnd/Scenario.hpp"

#include <algorithm>

namespace {

constexpr const char* lato = "/usr/share/fonts/truetype/lato/Lato-Bold.ttf";
constexpr const char* quicksand = "/usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf";
const std::string fontFolder = "/Library/Application Support/LYRFont/";

/// The text as a font's table of names has it.
std::string wide(const std::string& text)
{
    std::string bytes;
    for (char character : text)
        bytes += {'\0', character};
    return bytes;
}

void replaceAll(std::string& bytes, const std::string& from, const std::string& to)
{
    for (auto at = bytes.find(from); at != bytes.npos; at = bytes.find(from, at + to.size()))
        bytes.replace(at, from.size(), to);
}

/// A font file with one name, in all the places where it has it, replaced by another of the same length.
std::string renamed(const char* file, const std::string& from, const std::string& to)
{
    std::string bytes = Simulator::readHostFile(file).value;
    replaceAll(bytes, from, to);
    replaceAll(bytes, wide(from), wide(to));
    return bytes;
}

/// The subjects of all registrations since the log was taken last.
std::vector<std::string> registrations(Phone& phone)
{
    std::vector<std::string> subjects;
    for (const Json& record : phone.takeLog("registerFont"))
        subjects.push_back(record.contains("path") ? record.at("path") : record.at("name"));
    return subjects;
}

}

TEST(FontNames, ThatDifferInCaseOnlyAreTwoFontsAndStandTogetherInTheList)
{
    Support::TemporaryFolder folder;
    const auto other = folder.put("other.ttf", renamed(quicksand, "Quicksand", "QUICKsand"));
    auto phone = settled(eveningPhone({{"customFont", "5"}, {"customFontPickerTime", "QUICKsand-Bold"}})
                             .fonts({lato, quicksand, other}));
    EXPECT_EQ(phone.label("_timeLabel").fontName, "QUICKsand-Bold");
    phone.set({{"customFontPickerTime", "Quicksand-Bold"}});
    refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Quicksand-Bold");
    const Json table = phone.global("matchDict");
    EXPECT_EQ(table.at("Quicksand-Bold"), fontFolder + "Quicksand-Bold.ttf");
    EXPECT_EQ(table.at("QUICKsand-Bold"), fontFolder + "other.ttf");
    openEditor(phone);
    const auto names = phone.global("availableFonts").get<std::vector<std::string>>();
    const auto one = std::find(names.begin(), names.end(), "Quicksand-Bold");
    const auto two = std::find(names.begin(), names.end(), "QUICKsand-Bold");
    ASSERT_NE(one, names.end());
    ASSERT_NE(two, names.end());
    EXPECT_EQ(std::abs(one - two), 1);
}

// Quicksand's family takes the PostScript name of the other file's font.
TEST(FontNames, AFamilyNamedLikeAnotherFilesFontLeadsToTheLaterFile)
{
    Support::TemporaryFolder folder;
    const auto family = folder.put("family.ttf", renamed(quicksand, "Quicksand", "Lato-Bold"));
    for (bool familyIsLater : {false, true}) {
        auto phone = eveningPhone()
                         .file(fontFolder + "1.ttf", familyIsLater ? lato : family)
                         .file(fontFolder + "2.ttf", familyIsLater ? family : lato)
                         .start();
        const Json table = phone.global("matchDict");
        EXPECT_EQ(table.at("Lato-Bold"), fontFolder + "2.ttf");
        EXPECT_EQ(table.at("Lato"), fontFolder + (familyIsLater ? "1.ttf" : "2.ttf"));
        EXPECT_EQ(table.at("Lato-Bold-Bold"), fontFolder + (familyIsLater ? "2.ttf" : "1.ttf"));
        EXPECT_EQ(table.size(), 3u);
    }
}

TEST(FontNames, AreRegisteredFileByFileInTheOrderOfTheFolder)
{
    auto phone = eveningPhone().file(fontFolder + "b.ttf", lato).file(fontFolder + "a.ttf", quicksand).start();
    EXPECT_EQ(registrations(phone),
        (std::vector<std::string>{fontFolder + "a.ttf", "Quicksand-Bold", fontFolder + "b.ttf", "Lato-Bold"}));
}

TEST(FontNames, TheBuiltInOnesFollowInTheOrderOfTheirVariables)
{
    auto phone = settledWith();
    EXPECT_EQ(registrations(phone),
        (std::vector<std::string>{
            "Lato-Thin", "Roboto-Black", "Quicksand-Medium", "RobotoCondensed-Light", "Lato-Medium"}));
}
