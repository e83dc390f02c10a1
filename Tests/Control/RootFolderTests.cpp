// The phone's root folder on the host.
#include "Simulator/Control/RootFolder.hpp"

#include "Simulator/Base/HostFile.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Control;
using Support::TemporaryFolder;
namespace fs = std::filesystem;

namespace {

std::string read(const RootFolder& root, std::string_view phonePath)
{
    return Simulator::readHostFile(root.path() + std::string(phonePath)).value;
}

}

TEST(RootFolder, GoesWithItsOwnerWhenItIsTemporary)
{
    std::string path;
    {
        RootFolder root;
        path = root.path();
        root.fill({{"settings", {{"a", 1}}}});
        EXPECT_TRUE(fs::is_directory(path));
    }
    EXPECT_FALSE(fs::exists(path));
}

TEST(RootFolder, StaysWhenItWasGiven)
{
    const TemporaryFolder folder;
    {
        RootFolder root(folder.path().string());
        root.fill({{"settings", {{"enabled", true}}}});
    }
    EXPECT_NE(folder.read("var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist").find("<key>enabled</key>"),
        std::string::npos);
}

TEST(RootFolder, HoldsWhatAStartPutsThere)
{
    const TemporaryFolder host;
    RootFolder root;
    root.fill({{"files", {{"/Library/deep/er.txt", host.put("a", "file")}}}, {"colours", {{"colourTime", "#fff"}}},
        {"wallpaper", host.put("w.jpg", "picture")}, {"fonts", {host.put("My Font.ttf", "font")}}});
    EXPECT_EQ(read(root, "/Library/deep/er.txt"), "file");
    EXPECT_NE(read(root, coloursPath).find("<string>#fff</string>"), std::string::npos);
    EXPECT_EQ(read(root, wallpaperPath), "picture");
    EXPECT_EQ(read(root, "/Library/Application Support/LYRFont/My Font.ttf"), "font");
    EXPECT_EQ(read(root, settingsPath), "");
}

TEST(RootFolder, TakesFoldersWithAllThatIsInThem)
{
    const TemporaryFolder host;
    host.put("bundle/a", "1");
    host.put("bundle/in/b", "2");
    RootFolder root;
    root.fill({{"files", {{"/Library/bundle", host.at("bundle")}}}});
    EXPECT_EQ(read(root, "/Library/bundle/a"), "1");
    EXPECT_EQ(read(root, "/Library/bundle/in/b"), "2");
}

TEST(RootFolder, LosesItsWallpaperToNull)
{
    const TemporaryFolder host;
    RootFolder root;
    root.fill({{"wallpaper", host.put("w.jpg", "picture")}});
    root.fill(Json::object());
    EXPECT_EQ(read(root, wallpaperPath), "picture");
    root.fill({{"wallpaper", nullptr}});
    EXPECT_FALSE(fs::exists(root.path() + std::string(wallpaperPath)));
}

TEST(RootFolder, IsNotLeftByAPathWithDots)
{
    const TemporaryFolder host;
    fs::create_directory(host.at("root"));
    RootFolder root(host.at("root"));
    root.fill({{"files", {{"/../../outside", host.put("a", "file")}}}});
    EXPECT_FALSE(host.has("outside"));
    EXPECT_EQ(read(root, "/outside"), "file");
}
