// Files and folders of the host.
#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Base/UnfinishedFile.hpp"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

using namespace Simulator;
namespace fs = std::filesystem;

TEST(HostFile, IsReadWhole)
{
    const TemporaryFolder folder;
    for (const std::size_t size : {0u, 1u, 4096u, 100000u}) {
        const std::string bytes(size, 'x');
        std::ofstream(folder.path() / "file", std::ios::binary) << bytes;
        const auto read = readHostFile(folder.path() / "file");
        EXPECT_TRUE(read);
        EXPECT_EQ(read.value, bytes);
    }
}

TEST(HostFile, IsReadToItsEndWhereTheSystemTellsNoSize)
{
    EXPECT_TRUE(readHostFile("/proc/self/status").value.starts_with("Name:"));
}

TEST(HostFile, SaysWhyItCannotBeRead)
{
    const TemporaryFolder folder;
    EXPECT_EQ(readHostFile(folder.path() / "none").error, ENOENT);
    EXPECT_EQ(readHostFile(folder.path()).error, EISDIR);
}

TEST(UnfinishedFile, TakesThePlaceOfAnother)
{
    const TemporaryFolder folder;
    std::ofstream(folder.path() / "file") << "old";
    {
        UnfinishedFile file(folder.path() / "file");
        ASSERT_EQ(::write(file.descriptor(), "new", 3), 3);
        EXPECT_EQ(readHostFile(folder.path() / "file").value, "old");
        EXPECT_EQ(file.takePlace(), 0);
    }
    EXPECT_EQ(readHostFile(folder.path() / "file").value, "new");
}

TEST(UnfinishedFile, LeavesNothingBehind)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "taken/by");
    {
        UnfinishedFile one(folder.path() / "file"), other(folder.path() / "file"), third(folder.path() / "taken");
        EXPECT_TRUE(one && other);
        EXPECT_EQ(third.takePlace(), EISDIR);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
    EXPECT_FALSE(UnfinishedFile(folder.path() / "none/file"));
    EXPECT_EQ(errno, ENOENT);
}

TEST(TemporaryFolder, GoesWithAllThatIsInIt)
{
    fs::path path;
    {
        const TemporaryFolder folder("name");
        path = folder.path();
        EXPECT_TRUE(path.filename().string().starts_with("name-"));
        fs::create_directories(path / "a/b");
    }
    EXPECT_FALSE(fs::exists(path));
}

TEST(TemporaryFolder, IsOneOfItsOwn)
{
    EXPECT_NE(TemporaryFolder().path(), TemporaryFolder().path());
}
