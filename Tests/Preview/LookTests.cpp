// `lyr look` from outside: a phone's look into a file, and a file's look onto a phone.
#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Preview/Look.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"
#include "Product/Settings.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Support;
using Simulator::Control::propertyListXml;

namespace {

const std::string settingsOnPhone = "root/var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";
const std::string coloursOnPhone = "root/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist";

class Look : public testing::Test {
protected:
    Look() { std::filesystem::create_directories(folder.path() / "root"); }

    Finished look(const std::string& command, const std::string& file)
    {
        return runProgram({"look", command, folder.at(file), "--root", folder.at("root")});
    }

    void expectRefusal(const std::string& content, const std::string& message)
    {
        const std::string settings = folder.put(settingsOnPhone, propertyListXml({{"timeFormat", "kept"}}));
        folder.put("bad.lyrlook", content);
        const std::string before = folder.read(settingsOnPhone);
        const Finished finished = look("import", "bad.lyrlook");
        EXPECT_EQ(finished.status, 1) << content;
        EXPECT_EQ(finished.errors, "lyr: " + folder.at("bad.lyrlook") + ": " + message + "\n");
        EXPECT_EQ(folder.read(settingsOnPhone), before);
        EXPECT_FALSE(folder.has(coloursOnPhone));
    }

    TemporaryFolder folder;
};

}

TEST_F(Look, GoesIntoAFileAndOntoAnotherPhone)
{
    folder.put(settingsOnPhone,
        propertyListXml(
            {{"timeFormat", "HH:mm"}, {"enableDate", false}, {"alignTime", 3}, {"customFontPickerTime", "Lato-Bold"}}));
    folder.put(coloursOnPhone, propertyListXml({{"colourTime", "#FF0000:1.00"}}));
    EXPECT_EQ(look("export", "mine.lyrlook").status, 0);
    EXPECT_EQ(Json::parse(folder.read("mine.lyrlook")),
        Json::parse(R"({"lyrlook": 1, "fonts": ["Lato-Bold"], "colours": {"colourTime": "#FF0000:1.00"},
            "settings": {"timeFormat": "HH:mm", "enableDate": false, "alignTime": 3, "customFontPickerTime": "Lato-Bold"}})"));

    const std::string settings = folder.read(settingsOnPhone);
    const std::string colours = folder.read(coloursOnPhone);
    folder.put(settingsOnPhone, propertyListXml({{"styleDate", "1"}}));
    std::filesystem::remove(folder.at(coloursOnPhone));
    EXPECT_EQ(look("import", "mine.lyrlook").status, 0);
    EXPECT_EQ(folder.read(settingsOnPhone), settings);
    EXPECT_EQ(folder.read(coloursOnPhone), colours);
}

TEST_F(Look, OfANewPhoneIsEmpty)
{
    EXPECT_EQ(look("export", "new.lyrlook").status, 0);
    EXPECT_EQ(Json::parse(folder.read("new.lyrlook")),
        Json::parse(R"({"lyrlook": 1, "settings": {}, "colours": {}, "fonts": []})"));
}

TEST_F(Look, LeavesOutWhatThisProgramWouldNotTakeBack)
{
    folder.put(
        settingsOnPhone, propertyListXml({{"stranger", "1"}, {"timeFormat", Json::array({"a"})}, {"alignTime", "1"}}));
    look("export", "mine.lyrlook");
    EXPECT_EQ(Json::parse(folder.read("mine.lyrlook"))["settings"], Json({{"alignTime", "1"}}));
    EXPECT_EQ(look("import", "mine.lyrlook").status, 0);
}

TEST_F(Look, NamesAFontThatThePhoneLacks)
{
    folder.put("mine.lyrlook", R"({"lyrlook": 1, "settings": {}, "colours": {}, "fonts": ["NoSuchFont"]})");
    const Finished finished = look("import", "mine.lyrlook");
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.errors,
        "lyr: the look uses the font \"NoSuchFont\", which this phone lacks; its file belongs into "
        "/Library/Application Support/LYRFont\n");
}

TEST_F(Look, IsRefusedWhereItIsNewerOrUnknown)
{
    expectRefusal(R"({"lyrlook": 2, "settings": {}, "colours": {}})",
        "the look is of version 2; this program knows looks up to version 1");
    expectRefusal(R"({"lyrlook": 1, "settings": {"alignTime": "1", "wobble": true}, "colours": {}})",
        "the look's \"settings\" has the unknown key \"wobble\"; this program knows looks of version 1");
    expectRefusal(R"({"lyrlook": 1, "settings": {}, "colours": {"colourSky": "#FFFFFF"}})",
        "the look's \"colours\" has the unknown key \"colourSky\"; this program knows looks of version 1");
    expectRefusal(R"({"lyrlook": 1, "settings": {}, "colours": {}, "sounds": []})",
        "the look has the unknown member \"sounds\"; this program knows looks of version 1");
}

TEST_F(Look, IsRefusedWhereItIsNone)
{
    expectRefusal("[]", "no look: an object with \"lyrlook\", its version, is needed");
    expectRefusal(R"({"lyrlook": "1"})", "the look's version \"lyrlook\" takes a whole number from 1, not \"1\"");
    expectRefusal(R"({"lyrlook": 1, "settings": {}})", "the look's \"colours\" takes an object");
    expectRefusal(R"({"lyrlook": 1, "settings": {"alignTime": null}, "colours": {}})",
        "the look's \"alignTime\" takes text, a number, true or false, not null");
    expectRefusal(R"({"lyrlook": 1, "settings": {}, "colours": {"colourTime": 1}})",
        "the look's \"colourTime\" takes text, not 1");
    expectRefusal(R"({"lyrlook": 1, "settings": {"timeFormat": "a\u0000b"}, "colours": {}})",
        "the look's \"timeFormat\" takes text, a number, true or false, not \"a\\u0000b\"");
    expectRefusal(
        R"({"lyrlook": 1, "settings": {}, "colours": {}, "fonts": [1]})", "the look's \"fonts\" takes a list of names");
}

TEST_F(Look, LeavesTheSettingsAloneWhereTheColoursCannotBeWritten)
{
    folder.put(settingsOnPhone, propertyListXml({{"timeFormat", "kept"}}));
    const std::string before = folder.read(settingsOnPhone);
    std::filesystem::create_directories(folder.at(coloursOnPhone) + "/inTheWay");
    folder.put("mine.lyrlook", R"({"lyrlook": 1, "settings": {"timeFormat": "new"}, "colours": {}})");
    const Finished finished = look("import", "mine.lyrlook");
    EXPECT_EQ(finished.status, 1);
    EXPECT_EQ(std::count(finished.errors.begin(), finished.errors.end(), '\n'), 1);
    EXPECT_EQ(folder.read(settingsOnPhone), before);
}

TEST_F(Look, OfADamagedPhoneIsNotWritten)
{
    folder.put(settingsOnPhone, "<plist><dict>");
    const Finished finished = look("export", "mine.lyrlook");
    EXPECT_EQ(finished.status, 1);
    EXPECT_EQ(finished.errors, "lyr: " + folder.at(settingsOnPhone) + ": no property list with a dictionary\n");
    EXPECT_FALSE(folder.has("mine.lyrlook"));
}

TEST_F(Look, GoesWhereTheFileNameLeads)
{
    folder.put("target.lyrlook", "old");
    std::filesystem::create_symlink("target.lyrlook", folder.at("link.lyrlook"));
    EXPECT_EQ(look("export", "link.lyrlook").status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.at("link.lyrlook")));
    EXPECT_TRUE(Json::accept(folder.read("target.lyrlook")));
    const Finished finished = runProgram({"look", "export", "/dev/stdout", "--root", folder.at("root")});
    EXPECT_EQ(finished.output, folder.read("target.lyrlook"));
}

TEST_F(Look, IsNotWrittenWhereItMayNotBe)
{
    chmod(folder.put("mine.lyrlook", "kept").c_str(), 0444);
    mkfifo(folder.at("pipe").c_str(), 0600);
    EXPECT_EQ(look("export", "mine.lyrlook").errors,
        "lyr: " + folder.at("mine.lyrlook") + ": cannot be written: it is read-only\n");
    EXPECT_EQ(look("export", "pipe").errors,
        "lyr: " + folder.at("pipe") + ": cannot be written: nobody reads from this pipe\n");
    EXPECT_EQ(look("export", "pipe").status, 1);
    EXPECT_EQ(folder.read("mine.lyrlook"), "kept");
}

TEST_F(Look, NeedsAPhone)
{
    EXPECT_EQ(runProgram({"look", "export", folder.at("mine.lyrlook")}).status, 2);
    EXPECT_EQ(runProgram({"look", "export", folder.at("mine.lyrlook"), "--root", "/none"}).status, 2);
    EXPECT_EQ(runProgram({"look"}).status, 2);
}

TEST(LookKeys, AreTheSettingsOfTheExtensionAndTheFontsItIsGiven)
{
    const auto& keys = Simulator::Preview::lookSettings();
    ASSERT_EQ(keys.size(), std::size(Product::settings) + 2);
    EXPECT_EQ(keys.front(), "enabled");
    EXPECT_EQ(keys[keys.size() - 3], "ctNoOlder");
    EXPECT_EQ(keys[keys.size() - 2], "customFontPickerTime");
    EXPECT_EQ(keys.back(), "customFontPicker");
}
