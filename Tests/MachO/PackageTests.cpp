// The library as it lies in the package that is installed on a phone, on an ordinary evening.
#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/MachO/PhoneWith.hpp"

#include <gmock/gmock.h>

#include <fstream>

namespace {

/// Unpacks the package; answers the library's path.
std::string libraryOutOfThePackage(const std::filesystem::path& folder)
{
    const std::string command = "dpkg-deb -x '" PACKAGE "' '" + folder.string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    return folder / "Library/MobileSubstrate/DynamicLibraries/LYR_Pro.dylib";
}

}

TEST(Package, ItsLibraryStartsHooksComposesAndEdits)
{
    const Support::TemporaryFolder folder;
    auto phone = phoneWith(libraryOutOfThePackage(folder.path()), editorPhone());
    phone.settle();
    const Json hooks = phone.call("objc.hooks").at("hooks");
    const auto isResolved = [](const Json& hook) { return hook.at("resolved") == true; };
    EXPECT_GT(std::count_if(hooks.begin(), hooks.end(), isResolved), 30);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");

    openEditor(phone);
    EXPECT_TRUE(phone.view("_optionView").onScreen);
    EXPECT_EQ(activeFlags(phone), std::vector<std::string>{"_timePress"});
    choose(phone, timeTab, colourSegment);
    phone.send({{"id", "_showWell"}}, "setBackgroundColor:", Json::array({"#FF0000FF"}));
    phone.tap("_colorWheel5");
    EXPECT_EQ(phone.colours().at("colourTime"), "#FF0000:1.00");

    pressDone(phone);
    EXPECT_FALSE(phone.has("_done") && phone.view("_done").onScreen);
    EXPECT_EQ(activeFlags(phone), std::vector<std::string>());
    EXPECT_EQ(phone.info().at("safeMode"), false);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

namespace {

/// A phone that has the package and nothing else of the extension's.
Phone phoneWithPackage(const char* package, const Support::PhoneStart& start = eveningPhone())
{
    return phoneWith("", Support::PhoneStart(start).with("package", package));
}

Json bytesIn(Phone& phone, const std::string& path)
{
    return phone.call("file.read", {{"path", path}}).at("base64");
}

}

TEST(InstalledPackage, ShowsItsClockWithItsFontsAndItsPicturesOnEitherKindOfPhone)
{
    const auto start = [] { return eveningPhone({{"customFont", "3"}, {"dateOption", "7"}}); };
    const Support::TemporaryFolder folder;
    auto expected = phoneWith(PHONE_LIBRARY, start());
    expected.settle();
    for (const char* package : {PACKAGE, SEALED_PACKAGE}) {
        auto phone = phoneWithPackage(package, start());
        phone.settle();
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
        EXPECT_EQ(phone.capture(), expected.capture()) << package;
    }
}

TEST(InstalledPackage, BringsAnEmptyColourFileThatTheEditorFillsAndPagesThatItCannotChange)
{
    const std::string page = "/Library/PreferenceBundles/LYRPrefs.bundle/subTime.plist";
    auto phone = phoneWithPackage(PACKAGE, editorPhone());
    phone.settle();
    const Json before = bytesIn(phone, page);
    EXPECT_EQ(phone.colours(), Json::object());
    openEditor(phone);
    choose(phone, timeTab, colourSegment);
    phone.send({{"id", "_showWell"}}, "setBackgroundColor:", Json::array({"#FF0000FF"}));
    phone.tap("_colorWheel5");
    EXPECT_EQ(phone.colours().at("colourTime"), "#FF0000:1.00");
    EXPECT_EQ(bytesIn(phone, page), before);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(InstalledPackage, MayBeOnAPhoneWithColoursAlready)
{
    auto phone = phoneWithPackage(PACKAGE, eveningPhone({{"colorTime", "4"}}).colours({{"colourTime", "#123456"}}));
    phone.settle();
    EXPECT_EQ(phone.colours().at("colourTime"), "#123456");
}

TEST(InstalledPackage, OwnsWhatItListsAndGivesAwayWhatItsScriptSays)
{
    const Support::TemporaryFolder folder;
    const auto tree = folder.path() / "tree";
    std::filesystem::create_directories(tree / "DEBIAN");
    std::filesystem::create_directories(tree / "var/mobile/Library/Made");
    std::ofstream(tree / "DEBIAN/control") << "Package: com.example.owners\nVersion: 1\nArchitecture: iphoneos-arm\n"
                                              "Maintainer: We\nDescription: Owners\n";
    std::ofstream(tree / "DEBIAN/postinst") << "#!/bin/sh\nset -e\ncd \"$DPKG_ROOT/var/mobile/Library/Made\"\n"
                                               "echo 1 >kept\necho 2 >given\nchown mobile:mobile given\n"
                                               "mv given 'given away'\n";
    std::filesystem::permissions(tree / "DEBIAN/postinst", std::filesystem::perms(0755));
    std::ofstream(tree / "var/mobile/Library/Made/packed") << "3\n";
    const std::string package = folder.at("owners.deb");
    const std::string command = "dpkg-deb --root-owner-group -b '" + tree.string() + "' '" + package + "' >/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0);

    auto phone = phoneWithPackage(package.c_str());
    phone.call("objc.new", {{"class", "NSMutableDictionary"}, {"name", "content"}});
    const auto mayWrite = [&phone](const std::string& name) {
        const std::string path = "/var/mobile/Library/Made/" + name;
        return phone.send({{"named", "content"}}, "writeToFile:atomically:", {path, false}) == 1;
    };
    EXPECT_FALSE(mayWrite("packed"));
    EXPECT_FALSE(mayWrite("kept"));
    EXPECT_TRUE(mayWrite("given away"));
    phone.send({{"instance", "FBSystemService"}}, "exitAndRelaunch:", {true});
    EXPECT_EQ(phone.info().at("restarts"), 1);
    phone.call("objc.new", {{"class", "NSMutableDictionary"}, {"name", "content"}});
    EXPECT_FALSE(mayWrite("kept"));
    EXPECT_TRUE(mayWrite("given away"));
}

TEST(InstalledPackage, IsRefusedByNameWhenItIsNone)
{
    const Support::TemporaryFolder folder;
    const std::string package = folder.put("note.deb", "no package");
    try {
        phoneWithPackage(package.c_str());
        FAIL() << "it was installed";
    } catch (const std::exception& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("note.deb: cannot be installed"));
    }
}
