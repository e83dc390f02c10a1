// Faults a test injects into the phone's file system.
#include "TemporaryRoot.hpp"

using namespace Simulator;

struct FileFaults : TemporaryRoot {
    void SetUp() override
    {
        TemporaryRoot::SetUp();
        files.put("/Library/x", "old");
    }
};

TEST_F(FileFaults, AReadFailsUntilTheFaultIsTakenAway)
{
    files.setFault("/Library/x", FileOperation::read, EACCES);
    EXPECT_EQ(files.read("/Library/x").error, EACCES);
    EXPECT_EQ(files.fetch("/Library/x").value, "old");
    files.setFault("/Library/x", FileOperation::read, 0);
    EXPECT_EQ(files.read("/Library/x").value, "old");
}

TEST_F(FileFaults, AFailedAtomicWriteKeepsTheOldFileAndLeavesNoOther)
{
    for (const auto& [operation, error] : {std::pair(FileOperation::write, ENOSPC),
             std::pair(FileOperation::write, EACCES), std::pair(FileOperation::rename, EIO)}) {
        files.clearFaults();
        files.setFault("/Library/x", operation, error);
        EXPECT_EQ(files.write("/Library/x", "new", WriteMode::atomic), error);
        EXPECT_EQ(files.read("/Library/x").value, "old");
        EXPECT_EQ(files.list("/Library").value, (std::vector<std::string>{"x"}));
    }
}

TEST_F(FileFaults, AFullDiskTruncatesAFileThatIsWrittenInPlace)
{
    files.setFault("/Library/x", FileOperation::write, ENOSPC);
    EXPECT_EQ(files.write("/Library/x", "new", WriteMode::direct), ENOSPC);
    EXPECT_EQ(files.read("/Library/x").value, "");
}

TEST_F(FileFaults, MissingPermissionKeepsAFileThatIsWrittenInPlace)
{
    files.setFault("/Library/x", FileOperation::write, EACCES);
    EXPECT_EQ(files.write("/Library/x", "new", WriteMode::direct), EACCES);
    EXPECT_EQ(files.remove("/Library/x"), EACCES);
    EXPECT_EQ(files.read("/Library/x").value, "old");
}

TEST_F(FileFaults, AFaultOfAFolderHoldsForAllThatIsInIt)
{
    files.setFault("/private/var/mobile/", FileOperation::write, EACCES);
    files.setFault("/Library", FileOperation::read, EIO);
    EXPECT_EQ(files.createFolder("/User/Library", true), EACCES);
    EXPECT_EQ(files.list("/Library").error, EIO);
    EXPECT_EQ(files.read("/Library/x").error, EIO);
    EXPECT_EQ(files.read("/LibraryX").error, ENOENT);
    EXPECT_EQ(files.write("/Library/y", "", WriteMode::atomic), 0);
}

TEST_F(FileFaults, AFaultOfTheTopHoldsEverywhere)
{
    files.setFault("/", FileOperation::rename, EIO);
    EXPECT_EQ(files.write("/Library/x", "new", WriteMode::atomic), EIO);
    EXPECT_EQ(files.rename("/Library/x", "/Library/y"), EIO);
    EXPECT_EQ(files.write("/Library/x", "new", WriteMode::direct), 0);
}
