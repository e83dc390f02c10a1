// The library as it lies in the package that is installed on a phone, on an ordinary evening.
#include "Tests/EndToEnd/EditorScenario.hpp"
#include "Tests/MachO/PhoneWith.hpp"

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
