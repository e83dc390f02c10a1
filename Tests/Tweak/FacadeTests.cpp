// The classes that the extension's facades are named after.
#include "ExtensionTest.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/Runtime/System.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

using namespace Simulator;

namespace {

/// "UILabel" of `Class_<Label, View, "UILabel">`, from all headers.
std::set<std::string> classesOfFacades()
{
    const std::regex facade(R"(Class_<[^"<>]*"(\w+)\">)");
    std::set<std::string> names;
    for (const auto& header : std::filesystem::recursive_directory_iterator(PLATFORM_FOLDER)) {
        if (!header.is_regular_file())
            continue;
        std::ifstream file(header.path());
        const std::string text(std::istreambuf_iterator<char>(file), {});
        for (std::sregex_iterator found(text.begin(), text.end(), facade), end; found != end; ++found)
            names.insert((*found)[1]);
    }
    return names;
}

using Facades = ExtensionTest;

}

// A row registers its class without being referred to: a library that was not linked as a whole would lack classes.
TEST_F(Facades, AreNamedAfterClassesThatThePhoneHas)
{
    // The extension opens them when it needs them.
    bringClassesOf("/System/Library/PrivateFrameworks/CoreDuet.framework/CoreDuet");
    bringClassesOf("/System/Library/PrivateFrameworks/LowPowerMode.framework/LowPowerMode");
    const auto names = classesOfFacades();
    EXPECT_TRUE(names.contains("CSCoverSheetViewController"));
    EXPECT_TRUE(names.contains("HBPreferences"));
    EXPECT_TRUE(names.contains("NSTimer"));
    EXPECT_TRUE(names.contains("UISlider"));
    for (const std::string& name : names)
        EXPECT_TRUE(objc_getClass(name.c_str()) || !System::current().hasClass(name)) << "the phone has no " << name;
}
