// Which paths are the phone's, and that none leads out of the root.
#include "TemporaryRoot.hpp"

using namespace Simulator;

using PhonePaths = TemporaryRoot;

TEST_F(PhonePaths, KnowsThePhonesFoldersFromTheHosts)
{
    for (const char* path :
        {"/Library", "/Library/Application Support/LYRFont/", "/System/Library/Fonts/Core", "/Applications/Maps.app",
            "/User/Library", "/var/mobile/Library/Preferences/a.plist", "/private/var/mobile",
            "/usr/lib/TweakInject/a.dylib", "//Library//x", "/tmp/../Library/x", "/Library/../etc/passwd"})
        EXPECT_TRUE(files.isPhonePath(path)) << path;
    for (const char* path : {"", "/", "/usr/share/GNUstep", "/etc/GNUstep.conf", "/root/GNUstep", "/tmp/x", "/home/u",
             "/LibraryOfMine/x", "/variable", "Library/x", "/proc/self/exe"})
        EXPECT_FALSE(files.isPhonePath(path)) << path;
}

TEST_F(PhonePaths, MapsThemUnderTheRoot)
{
    EXPECT_EQ(files.hostPath("/Library/x.plist"), root + "/Library/x.plist");
    EXPECT_EQ(files.hostPath("/"), root);
    EXPECT_EQ(files.hostPath("/Library/folder/"), root + "/Library/folder");
}

TEST_F(PhonePaths, FollowsTheSystemsLinks)
{
    EXPECT_EQ(files.hostPath("/private/var/mobile/x"), root + "/var/mobile/x");
    EXPECT_EQ(files.hostPath("/User/Library/x"), root + "/var/mobile/Library/x");
    EXPECT_EQ(files.hostPath("/private/variable"), root + "/private/variable");
    EXPECT_EQ(PhoneFiles::canonicalPath("/User"), "/var/mobile");
    EXPECT_EQ(PhoneFiles::canonicalPath("/Users/x"), "/Users/x");
}

TEST_F(PhonePaths, StayInsideTheRootWhateverTheyAskFor)
{
    EXPECT_EQ(files.hostPath("/Library/../../../etc/passwd"), root + "/etc/passwd");
    EXPECT_EQ(files.hostPath("/.."), root);
    EXPECT_EQ(files.hostPath("../../x"), root + "/x");
    EXPECT_EQ(files.hostPath("/Library/./a/.//../b"), root + "/Library/b");
    EXPECT_EQ(files.hostPath("/Library/...dots/..x"), root + "/Library/...dots/..x");
}

TEST_F(PhonePaths, AHostPathUnderTheRootIsNotMappedAgain)
{
    PhoneFiles other;
    std::filesystem::create_directories(root + "/var/tmp/phone");
    other.setRoot("/var/tmp/phone-of-nobody/");
    EXPECT_FALSE(other.isPhonePath("/var/tmp/phone-of-nobody/Library/x"));
    EXPECT_TRUE(other.isPhonePath("/var/tmp/x"));
    EXPECT_EQ(other.phonePath("/var/tmp/phone-of-nobody/Library/x"), "/Library/x");
    EXPECT_EQ(other.phonePath("/var/tmp/phone-of-nobody"), "/");
    EXPECT_EQ(other.phonePath("/home/x"), "/home/x");
}

TEST_F(PhonePaths, TakeAVeryLongOne)
{
    std::string path = "/Library";
    for (int i = 0; i < 100000; ++i)
        path += "/a/..";
    EXPECT_EQ(files.hostPath(path), root + "/Library");
    EXPECT_EQ(files.read("/Library/" + std::string(100000, 'x')).error, ENAMETOOLONG);
}

TEST_F(PhonePaths, LinksInTheRootDoNotLeadOutOfIt)
{
    namespace fs = std::filesystem;
    fs::create_directories(root + "/Library");
    fs::create_directory_symlink(outside, root + "/Library/away");
    fs::create_symlink(outside + "/new", root + "/Library/dangling");
    fs::create_directory_symlink(root + "/Library", root + "/Library/inside");
    EXPECT_EQ(files.write("/Library/away/new", "x", WriteMode::direct), EACCES);
    EXPECT_EQ(files.write("/Library/away/new", "x", WriteMode::atomic), EACCES);
    EXPECT_EQ(files.write("/Library/dangling", "x", WriteMode::direct), ENOENT);
    EXPECT_EQ(files.createFolder("/Library/away/folder", true), EACCES);
    EXPECT_EQ(files.list("/Library/away").error, EACCES);
    EXPECT_FALSE(files.exists("/Library/away"));
    EXPECT_FALSE(fs::exists(outside + "/new"));
    EXPECT_EQ(files.write("/Library/inside/new", "x", WriteMode::direct), 0);
    EXPECT_EQ(files.read("/Library/new").value, "x");
}

TEST_F(PhonePaths, RemovingALinkLeavesWhatItPointsTo)
{
    namespace fs = std::filesystem;
    fs::create_directories(outside + "/kept");
    fs::create_directories(root + "/Library");
    fs::create_directory_symlink(outside + "/kept", root + "/Library/away");
    EXPECT_EQ(files.remove("/Library/away"), 0);
    EXPECT_FALSE(fs::is_symlink(root + "/Library/away"));
    EXPECT_TRUE(fs::exists(outside + "/kept"));
}
