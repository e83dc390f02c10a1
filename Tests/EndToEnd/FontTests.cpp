// The fonts of the resource folder, the user's own, and the list of all.
#include "Tests/EndToEnd/Scenario.hpp"

#include <algorithm>

namespace {

constexpr const char* lato = "/usr/share/fonts/truetype/lato/Lato-Bold.ttf";
constexpr const char* quicksand = "/usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf";
const std::string fontFolder = "/Library/Application Support/LYRFont/";

/// The log of a start also says what this system has no interception for.
bool isAboutFonts(const std::string& text)
{
    return !text.starts_with("[LYR] not intercepted");
}

std::vector<std::string> logTexts(Phone& phone)
{
    std::vector<std::string> texts;
    for (const Json& record : phone.takeLog("nslog")) {
        if (isAboutFonts(record.at("text")))
            texts.push_back(record.at("text"));
    }
    return texts;
}

Json listFonts(Phone& phone)
{
    openEditor(phone);
    return phone.global("availableFonts");
}

}

TEST(Fonts, AnEmptyFolderGivesAnEmptyTable)
{
    auto phone = eveningPhone().start();
    EXPECT_EQ(phone.global("matchDict"), Json::object());
}

TEST(Fonts, FamilyAndPostScriptNameOfAUserFontLeadToItsFile)
{
    auto phone = eveningPhone().fonts({lato}).start();
    const std::string path = fontFolder + "Lato-Bold.ttf";
    EXPECT_EQ(phone.global("matchDict"), (Json{{"Lato", path}, {"Lato-Bold", path}}));
}

TEST(Fonts, OfTwoFilesThatShareANameTheLaterOneWins)
{
    Support::TemporaryFolder folder;
    auto phone = eveningPhone()
                     .file(fontFolder + "1.ttf", lato)
                     .file(fontFolder + "2.ttf", "/usr/share/fonts/truetype/lato/Lato-Black.ttf")
                     .file(fontFolder + "3.ttf", lato)
                     .start();
    auto table = phone.global("matchDict");
    EXPECT_EQ(table.at("Lato-Bold"), fontFolder + "3.ttf");
    EXPECT_EQ(table.at("Lato-Black"), fontFolder + "2.ttf");
    EXPECT_EQ(table.at("Lato"), fontFolder + "3.ttf");
}

TEST(Fonts, EachUserFontIsRegisteredTwiceAndTheSecondTimeFailsHarmlessly)
{
    auto phone = eveningPhone().fonts({lato}).start();
    auto records = phone.takeLog();
    std::vector<bool> results;
    std::vector<std::string> texts;
    for (const Json& record : records) {
        if (record.at("kind") == "registerFont")
            results.push_back(record.at("ok"));
        if (record.at("kind") == "nslog" && isAboutFonts(record.at("text")))
            texts.push_back(record.at("text"));
    }
    EXPECT_EQ(results, (std::vector{true, false}));
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0], "Font path: " + fontFolder + "Lato-Bold.ttf");
    EXPECT_EQ(texts[1].find("Failed to load font: "), 0u);
}

TEST(Fonts, FilesThatAreNoFontsAreLoggedAndLeftAlone)
{
    Support::TemporaryFolder folder;
    std::string noise;
    for (unsigned i = 0; i < 5000; ++i)
        noise += static_cast<char>(i * 2654435761u >> 13);
    auto phone = eveningPhone().fonts({folder.put("a noise %@ %s.ttf", noise), folder.put("empty.ttf", ""), quicksand});
    auto started = phone.start();
    auto texts = logTexts(started);
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(),
                  [](const std::string& text) { return text.starts_with("[LYRFont] Failed to load font: "); }),
        2);
    EXPECT_NE(std::find(texts.begin(), texts.end(), "Font path: " + fontFolder + "a noise %@ %s.ttf"), texts.end());
    EXPECT_EQ(started.global("matchDict").size(), 2u) << "the good font is still there";
    started.settle();
    EXPECT_EQ(started.label("_timeLabel").text, "09.41");
}

TEST(Fonts, TheBuiltInFontsAreNamedByTheFirstFullRefresh)
{
    auto phone = eveningPhone().start();
    EXPECT_TRUE(phone.global("_font1").is_null());
    phone.settle();
    std::vector<Json> names;
    for (const char* variable : {"_font1", "_font2", "_font3", "_font4", "_font5"})
        names.push_back(phone.global(variable));
    EXPECT_EQ(names,
        (std::vector<Json>{"Lato-Thin", "Roboto-Black", "Quicksand-Medium", "RobotoCondensed-Light", "Lato-Medium"}));
}

TEST(Fonts, AMissingBuiltInFontLeavesItsNameAndTheLabelTakesTheSystemFont)
{
    auto phone = eveningPhone().start();
    phone.call("file.remove", {{"path", "/Library/Application Support/lyr.bundle/time1.ttf"}});
    phone.settle();
    EXPECT_TRUE(phone.global("_font1").is_null());
    EXPECT_EQ(phone.global("_font2"), "Roboto-Black");
    EXPECT_EQ(phone.label("_timeLabel").fontName.find("Inter"), 0u);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
}

TEST(Fonts, ThePickerListHoldsEveryInstalledFontOnceInOrderWithoutRegardToCase)
{
    auto phone = settled(eveningPhone().fonts({lato, quicksand}));
    auto names = listFonts(phone).get<std::vector<std::string>>();
    auto folded = [](std::string text) {
        std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
        return text;
    };
    EXPECT_TRUE(std::is_sorted(
        names.begin(), names.end(), [&](const std::string& a, const std::string& b) { return folded(a) < folded(b); }));
    for (const char* name : {"Lato-Bold", "Quicksand-Bold", "Lato-Thin", "Inter-Regular"})
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
}

TEST(Fonts, AFontAddedToTheFolderAppearsAfterTheNextStart)
{
    Support::TemporaryFolder root;
    Support::TemporaryFolder host;
    auto has = [](Phone& phone, const char* name) {
        auto names = listFonts(phone).get<std::vector<std::string>>();
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    auto phone = settled(eveningPhone().root(root.path().string()));
    const std::string bytes = Simulator::readHostFile(quicksand).value;
    phone.writeFile(fontFolder + "Quicksand-Bold.ttf", bytes);
    EXPECT_FALSE(has(phone, "Quicksand-Bold"));
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    phone.settle();
    EXPECT_TRUE(has(phone, "Quicksand-Bold"));
}

TEST(Fonts, APickedFontShowsInTheClock)
{
    auto phone = settled(eveningPhone({{"customFont", "5"}, {"customFontPickerTime", "Quicksand-Bold"},
                                          {"useCustomFont2", true}, {"customFontPicker", "Lato-Bold"}})
                             .fonts({lato, quicksand}));
    EXPECT_EQ(phone.label("_timeLabel").fontName, "Quicksand-Bold");
    EXPECT_EQ(phone.label("_dateLabel").fontName, "Lato-Bold");
    EXPECT_EQ(phone.label("_timerLabel").fontName, "Lato-Bold");
}
