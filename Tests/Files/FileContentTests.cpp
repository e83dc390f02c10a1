// Contents that are read when they are asked for, and shared while their file stays the same.
#include "TemporaryRoot.hpp"

#include "Simulator/Files/FileContent.hpp"

#include <fstream>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Simulator;

struct FileContentTest : TemporaryRoot {
    static constexpr std::size_t length = 100'000;

    std::string path() const { return root + "/file"; }
    void write(char letter, std::size_t size = length) const
    {
        std::ofstream(path(), std::ios::binary) << std::string(size, letter);
    }
    std::shared_ptr<const FileContent> open() const
    {
        return std::make_shared<const FileContent>(Descriptor(::open(path().c_str(), O_RDONLY | O_CLOEXEC)), length);
    }
    /// The status of some file that nobody has touched for long.
    static struct stat oldStatus(unsigned number)
    {
        struct stat status { };
        status.st_ino = number;
        status.st_size = length;
        return status;
    }
};

TEST_F(FileContentTest, GivesAnyPartAndTheWhole)
{
    std::string letters;
    while (letters.size() < length)
        letters += std::to_string(letters.size()) + ' ';
    letters.resize(length);
    std::ofstream(path(), std::ios::binary) << letters;
    const auto content = open();
    for (const std::size_t offset : {std::size_t(0), std::size_t(4'090), std::size_t(50'000), length - 10}) {
        std::byte part[10'000];
        const std::size_t count = content->copy(offset, part);
        EXPECT_EQ(std::string_view(reinterpret_cast<char*>(part), count), letters.substr(offset, sizeof part));
    }
    std::byte part[1];
    EXPECT_EQ(content->copy(length, part), 0u);
    EXPECT_EQ(content->bytes(), letters);
}

TEST_F(FileContentTest, OutlivesAFileThatIsReplaced)
{
    write('a');
    const auto content = open();
    std::filesystem::remove(path());
    write('b');
    EXPECT_EQ(content->bytes(), std::string(length, 'a'));
}

TEST_F(FileContentTest, WhatAFileLostBeforeItWasReadIsZero)
{
    write('a');
    const auto content = open();
    std::byte part[10];
    content->copy(0, part);
    std::filesystem::resize_file(path(), 0);
    EXPECT_EQ(content->bytes().substr(0, 10), "aaaaaaaaaa");
    EXPECT_EQ(content->bytes().back(), '\0');
    EXPECT_EQ(content->bytes().size(), length);
}

TEST_F(FileContentTest, IsFoundAgainUntilTheFileIsAnother)
{
    write('a');
    RecentContents recent;
    const auto content = open();
    recent.add(oldStatus(1), content);
    EXPECT_EQ(recent.find(oldStatus(1)), content);
    EXPECT_EQ(recent.find(oldStatus(2)), nullptr);
    auto changed = oldStatus(1);
    changed.st_ctim.tv_nsec = 1;
    EXPECT_EQ(recent.find(changed), nullptr);
    changed = oldStatus(1);
    changed.st_size = 1;
    EXPECT_EQ(recent.find(changed), nullptr);
}

TEST_F(FileContentTest, IsNotKeptWhereAnotherChangeMightNotShow)
{
    EXPECT_TRUE(RecentContents::suits(oldStatus(1)));
    auto status = oldStatus(1);
    clock_gettime(CLOCK_REALTIME, &status.st_ctim);
    EXPECT_FALSE(RecentContents::suits(status));
    status = oldStatus(1);
    status.st_size = 1 << 30;
    EXPECT_FALSE(RecentContents::suits(status));
}

TEST_F(FileContentTest, IsReadToItsEndWhenItIsNoLongerKept)
{
    write('a');
    RecentContents recent;
    const auto content = open();
    recent.add(oldStatus(1), content);
    for (unsigned number = 2; number < 10; ++number)
        recent.add(oldStatus(number), std::make_shared<const FileContent>(""));
    EXPECT_EQ(recent.find(oldStatus(1)), nullptr);
    std::filesystem::resize_file(path(), 0);
    EXPECT_EQ(content->bytes(), std::string(length, 'a'));
}

TEST_F(FileContentTest, IsReadToItsEndBeforeAFileIsChangedInItsPlace)
{
    write('a');
    RecentContents recent;
    const auto content = open();
    recent.add(oldStatus(1), content);
    recent.readAll();
    write('b');
    EXPECT_EQ(content->bytes(), std::string(length, 'a'));
}

TEST_F(FileContentTest, AFileThatWasWrittenJustNowIsReadEachTime)
{
    files.put("/Library/x", "one");
    const auto first = files.load("/Library/x");
    files.write("/Library/x", "two", WriteMode::direct);
    EXPECT_EQ(first.value->bytes(), "one");
    EXPECT_EQ(files.load("/Library/x").value->bytes(), "two");
}

TEST_F(FileContentTest, ReadersOfAnOldFileShareIt)
{
    files.setRoot("/usr/share");
    const auto first = files.load("/fonts/truetype/quicksand/Quicksand-Medium.ttf");
    ASSERT_TRUE(first);
    EXPECT_EQ(files.load("/fonts/truetype/quicksand/../quicksand/Quicksand-Medium.ttf").value, first.value);
    EXPECT_EQ(first.value->bytes(), files.read("/fonts/truetype/quicksand/Quicksand-Medium.ttf").value);
}

TEST_F(FileContentTest, LoadingFailsAsReadingDoes)
{
    files.put("/Library/x", "1");
    files.setFault("/Library/x", FileOperation::read, EIO);
    std::filesystem::create_directory_symlink(outside, root + "/Library/away");
    std::filesystem::create_directory_symlink("../../", root + "/Library/up");
    std::filesystem::create_directory_symlink("../Library", root + "/Library/here");
    for (const char* path : {"/Library/x", "/Library/none", "/Library", "", "/Library/away/x", "/Library/up/x"}) {
        EXPECT_NE(files.load(path).error, 0) << path;
        EXPECT_EQ(files.load(path).error, files.read(path).error) << path;
    }
    EXPECT_EQ(files.load("/Library/up").error, EACCES);
    files.clearFaults();
    EXPECT_EQ(files.load("/Library/here/x").value->bytes(), "1");
}

TEST_F(FileContentTest, ThePresenceOfAPathFollowsLinksThatStayInside)
{
    using enum PhoneFiles::Presence;
    files.put("/Library/x", "1");
    std::filesystem::create_directory_symlink(root + "/Library", root + "/whole");
    std::filesystem::create_directory_symlink(outside, root + "/away");
    EXPECT_EQ(files.presence("/Library/x"), file);
    EXPECT_EQ(files.presence("/whole"), folder);
    EXPECT_EQ(files.presence("/whole/x"), file);
    EXPECT_EQ(files.presence("/away"), none);
    EXPECT_EQ(files.presence("/none"), none);
    EXPECT_EQ(files.presence("/"), folder);
}
