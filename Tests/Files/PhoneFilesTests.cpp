// Reading, writing and listing the phone's files.
#include "TemporaryRoot.hpp"

#include <sys/stat.h>

using namespace Simulator;

using PhoneFilesTest = TemporaryRoot;

TEST_F(PhoneFilesTest, ReadsBackWhatWasWritten)
{
    ASSERT_EQ(files.createFolder("/Library/Preferences", true), 0);
    const std::string bytes("a\0b\n", 4);
    for (const WriteMode mode : {WriteMode::direct, WriteMode::atomic}) {
        EXPECT_EQ(files.write("/Library/Preferences/x", bytes, mode), 0);
        EXPECT_EQ(files.read("/Library/Preferences/x").value, bytes);
        EXPECT_EQ(files.write("/Library/Preferences/x", "", mode), 0);
        EXPECT_EQ(files.read("/Library/Preferences/x").value, "");
    }
    EXPECT_EQ(files.list("/Library/Preferences").value, (std::vector<std::string>{"x"}));
}

TEST_F(PhoneFilesTest, TellsWhyThereIsNothingToRead)
{
    files.createFolder("/Library", true);
    EXPECT_EQ(files.read("/Library/none").error, ENOENT);
    EXPECT_EQ(files.read("/Library").error, EISDIR);
    EXPECT_EQ(files.read("").error, ENOENT);
    EXPECT_EQ(files.read(std::string_view("/Library/a\0b", 12)).error, EINVAL);
    EXPECT_EQ(PhoneFiles().read("/Library/x").error, ENODEV);
}

TEST_F(PhoneFilesTest, DoesNotWaitForAPipe)
{
    files.createFolder("/var", true);
    ASSERT_EQ(::mkfifo((root + "/var/pipe").c_str(), 0600), 0);
    EXPECT_EQ(files.read("/var/pipe").error, EINVAL);
    EXPECT_EQ(files.write("/var/pipe", "x", WriteMode::direct), ENXIO);
}

TEST_F(PhoneFilesTest, WritesNothingWhereThereIsNoFolder)
{
    EXPECT_EQ(files.write("/Library/none/x", "x", WriteMode::atomic), ENOENT);
    EXPECT_EQ(files.write("/Library/none/x", "x", WriteMode::direct), ENOENT);
    files.createFolder("/Library/folder", true);
    EXPECT_EQ(files.write("/Library/folder", "x", WriteMode::atomic), EISDIR);
    EXPECT_EQ(files.write("/Library/folder", "x", WriteMode::direct), EISDIR);
}

TEST_F(PhoneFilesTest, ListsNamesInBytewiseOrder)
{
    for (const char* name : {"b.ttf", "a.ttf", "Z.otf", ".hidden", "é.ttf"})
        files.put(std::string("/Library/Fonts/") + name, "");
    const std::vector<std::string> names{".hidden", "Z.otf", "a.ttf", "b.ttf", "é.ttf"};
    EXPECT_EQ(files.list("/Library/Fonts/").value, names);
    EXPECT_EQ(files.list("/Library/none").error, ENOENT);
    EXPECT_EQ(files.list("/Library/Fonts/a.ttf").error, ENOTDIR);
}

TEST_F(PhoneFilesTest, TellsLettersOfDifferentCaseApart)
{
    files.put("/Library/x", "1");
    EXPECT_TRUE(files.exists("/Library/x"));
    EXPECT_FALSE(files.exists("/Library/X"));
}

TEST_F(PhoneFilesTest, RemovesFilesAndWholeFolders)
{
    files.put("/Library/a/b/c", "1");
    EXPECT_EQ(files.remove("/Library/a/b/c"), 0);
    EXPECT_EQ(files.remove("/Library/a/b/c"), ENOENT);
    EXPECT_EQ(files.remove("/Library/a"), 0);
    EXPECT_FALSE(files.exists("/Library/a"));
    EXPECT_EQ(files.remove("/"), EBUSY);
    EXPECT_EQ(files.remove("/Library/.."), EBUSY);
    EXPECT_TRUE(files.isFolder("/Library"));
}

TEST_F(PhoneFilesTest, CreatesFoldersAndRenames)
{
    EXPECT_EQ(files.createFolder("/Library/a/b", false), ENOENT);
    EXPECT_EQ(files.createFolder("/Library/a/b", true), 0);
    EXPECT_EQ(files.createFolder("/Library/a/b", true), 0);
    EXPECT_EQ(files.createFolder("/Library/a/b", false), EEXIST);
    EXPECT_EQ(files.rename("/Library/a/b", "/Library/c"), 0);
    EXPECT_TRUE(files.isFolder("/Library/c"));
    EXPECT_EQ(files.rename("/Library/a/b", "/Library/d"), ENOENT);
}

TEST_F(PhoneFilesTest, RecordsWhatTheShellWritesButNotWhatTheTesterPuts)
{
    std::vector<std::pair<std::string, int>> record;
    files.setWriteObserver([&](const std::string& path, int error) { record.emplace_back(path, error); });
    files.put("/Library/a", "1");
    files.write("/Library/b", "1", WriteMode::atomic);
    files.write("/none/b", "1", WriteMode::atomic);
    EXPECT_EQ(record, (std::vector<std::pair<std::string, int>>{{"/Library/b", 0}, {"/none/b", ENOENT}}));
}

TEST_F(PhoneFilesTest, TheShellChangesWhatIsTheUsersAlone)
{
    files.createFolder("/Library/Fonts", true);
    files.createFolder("/var/mobile/Library", true);
    ASSERT_EQ(files.put("/Library/Fonts/a", "1"), 0);
    files.runAsMobile();
    for (const WriteMode mode : {WriteMode::direct, WriteMode::atomic}) {
        EXPECT_EQ(files.write("/Library/Fonts/a", "2", mode), EACCES);
        EXPECT_EQ(files.write("/Library/Fonts/b", "2", mode), EACCES);
        EXPECT_EQ(files.write("/var/mobile/Library/a", "2", mode), 0);
    }
    EXPECT_EQ(files.remove("/Library/Fonts/a"), EACCES);
    EXPECT_EQ(files.rename("/var/mobile/Library/a", "/Library/Fonts/b"), EACCES);
    EXPECT_EQ(files.createFolder("/Library/New", false), EACCES);
    EXPECT_EQ(files.read("/Library/Fonts/a").value, "1");
    EXPECT_EQ(files.put("/Library/Fonts/a", "3"), 0) << "a tester's hand is root's";
}

TEST_F(PhoneFilesTest, WhatIsGivenToTheUserTheShellChanges)
{
    ASSERT_EQ(files.put("/Library/Fonts/a", "1"), 0);
    files.runAsMobile();
    files.give("/Library/Fonts", FileOwner::mobile);
    EXPECT_EQ(files.write("/Library/Fonts/a", "2", WriteMode::direct), EACCES);
    files.give("/Library/Fonts/a", FileOwner::mobile);
    for (const WriteMode mode : {WriteMode::direct, WriteMode::atomic})
        EXPECT_EQ(files.write("/Library/Fonts/a", "2", mode), 0);
    files.give("/Library/Fonts/a", FileOwner::root);
    EXPECT_EQ(files.write("/Library/Fonts/a", "3", WriteMode::direct), EACCES);
}

TEST_F(PhoneFilesTest, BeforeTheFirstUnlockTheUsersFilesAreThereAndCannotBeRead)
{
    ASSERT_EQ(files.put("/var/mobile/Library/a", "1"), 0);
    ASSERT_EQ(files.put("/Library/b", "2"), 0);
    files.setUnlockedOnce(false);
    EXPECT_EQ(files.read("/var/mobile/Library/a").error, EPERM);
    EXPECT_TRUE(files.exists("/var/mobile/Library/a"));
    EXPECT_EQ(files.read("/Library/b").value, "2");
    files.setUnlockedOnce(true);
    EXPECT_EQ(files.read("/var/mobile/Library/a").value, "1");
}
