// What is written where: files are replaced, devices and pipes are written to, all else is refused and left alone.
#include "Simulator/Control/OutputFile.hpp"

#include "Tests/Support/TemporaryFolder.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

using Simulator::Descriptor;
using Simulator::Control::OutputFile;
using Support::TemporaryFolder;

namespace fs = std::filesystem;

namespace {

class OutputFiles : public testing::Test {
protected:
    static std::string complaintAbout(const std::string& path, OutputFile::OwnStreams streams = {})
    {
        try {
            OutputFile(path, streams).write("new");
            return "";
        } catch (const std::runtime_error& error) {
            return error.what();
        }
    }

    void expectRefusal(const std::string& path, const std::string& why)
    {
        EXPECT_EQ(complaintAbout(path), path + ": cannot be written: " + why);
    }

    std::size_t entries() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
    }

    struct stat statusOf(const std::string& name) const
    {
        struct stat status {};
        EXPECT_EQ(lstat(folder.at(name).c_str(), &status), 0);
        return status;
    }

    std::string fifo(const std::string& name) const
    {
        EXPECT_EQ(mkfifo(folder.at(name).c_str(), 0600), 0);
        return folder.at(name);
    }

    std::string device(const std::string& name, unsigned minor) const
    {
        return mknod(folder.at(name).c_str(), S_IFCHR | 0666, makedev(1, minor)) == 0 ? folder.at(name) : "";
    }

    TemporaryFolder folder;
};

std::string readAll(const Descriptor& from)
{
    std::string all;
    char bytes[4096];
    for (ssize_t count; (count = read(from.number(), bytes, sizeof bytes)) > 0;)
        all.append(bytes, static_cast<std::size_t>(count));
    return all;
}

}

TEST_F(OutputFiles, AreMadeWhereThereIsNone)
{
    const mode_t mask = umask(027);
    EXPECT_EQ(complaintAbout(folder.at("new.png")), "");
    umask(mask);
    EXPECT_EQ(folder.read("new.png"), "new");
    EXPECT_EQ(statusOf("new.png").st_mode & 0777, 0640u);
    EXPECT_EQ(entries(), 1u);
}

TEST_F(OutputFiles, TakeThePlaceOfAFileInOneStepAndWithItsMode)
{
    const std::string path = folder.put("old.png", "a longer content");
    chmod(path.c_str(), 0604);
    const Descriptor reader(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(complaintAbout(path), "");
    EXPECT_EQ(folder.read("old.png"), "new");
    EXPECT_EQ(statusOf("old.png").st_mode & 0777, 0604u);
    EXPECT_EQ(readAll(reader), "a longer content") << "who has the old file open sees nothing half written";
    EXPECT_EQ(entries(), 1u);
}

TEST_F(OutputFiles, KeepTheOwner)
{
    const std::string path = folder.put("old.png", "old");
    if (chown(path.c_str(), 12345, 12346) != 0)
        GTEST_SKIP() << "only the superuser can give files away";
    EXPECT_EQ(complaintAbout(path), "");
    EXPECT_EQ(statusOf("old.png").st_uid, 12345u);
    EXPECT_EQ(statusOf("old.png").st_gid, 12346u);
}

TEST_F(OutputFiles, StayAsTheyAreUntilTheyAreWritten)
{
    const std::string path = folder.put("old.png", "old");
    {
        const OutputFile file(path);
        EXPECT_EQ(entries(), 1u);
    }
    EXPECT_EQ(folder.read("old.png"), "old");
}

TEST_F(OutputFiles, HaveNamesOfAnyLengthThatTheSystemTakes)
{
    const std::string name(NAME_MAX, 'n');
    EXPECT_EQ(complaintAbout(folder.at(name)), "");
    EXPECT_EQ(folder.read(name), "new");
    expectRefusal(folder.at(name + "n"), "File name too long");
}

TEST_F(OutputFiles, AreFoundBehindLinksWhichStay)
{
    fs::create_directory(folder.at("there"));
    folder.put("there/target.png", "old");
    fs::create_symlink("there/target.png", folder.at("second"));
    fs::create_symlink("second", folder.at("first"));
    EXPECT_EQ(complaintAbout(folder.at("first")), "");
    EXPECT_EQ(folder.read("there/target.png"), "new");
    EXPECT_EQ(fs::read_symlink(folder.at("first")), "second");
    EXPECT_EQ(fs::read_symlink(folder.at("second")), "there/target.png");
}

TEST_F(OutputFiles, AreMadeWhereALinkLeadsToNone)
{
    fs::create_directory(folder.at("there"));
    fs::create_symlink("there/target.png", folder.at("relative"));
    fs::create_symlink(folder.at("there/other.png"), folder.at("absolute"));
    EXPECT_EQ(complaintAbout(folder.at("relative")), "");
    EXPECT_EQ(complaintAbout(folder.at("absolute")), "");
    EXPECT_EQ(folder.read("there/target.png"), "new");
    EXPECT_EQ(folder.read("there/other.png"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.at("relative")));
}

TEST_F(OutputFiles, AreNotFoundBehindLinksThatLeadNowhere)
{
    fs::create_symlink("none/target.png", folder.at("astray"));
    fs::create_symlink("circle", folder.at("circle"));
    for (const char* name : {"astray", "circle"}) {
        expectRefusal(folder.at(name), "a file name in a folder that exists is needed");
        EXPECT_TRUE(fs::is_symlink(folder.at(name)));
    }
}

TEST_F(OutputFiles, NeedANameInAFolder)
{
    for (const std::string& path : {std::string(), folder.at(""), folder.at("none/new.png"), std::string("/")})
        expectRefusal(path, "a file name in a folder that exists is needed");
    expectRefusal(folder.path().string(), "it is a folder");
    expectRefusal(folder.at("."), "it is a folder");
    folder.put("file", "");
    expectRefusal(folder.at("file/new.png"), "Not a directory");
}

TEST_F(OutputFiles, AreLeftAloneWhereNobodyMayWriteThem)
{
    const std::string path = folder.put("mine.png", "kept");
    fs::create_symlink("mine.png", folder.at("link"));
    chmod(path.c_str(), 0444);
    expectRefusal(path, "it is read-only");
    expectRefusal(folder.at("link"), "it is read-only");
    EXPECT_EQ(folder.read("mine.png"), "kept");
    EXPECT_EQ(statusOf("mine.png").st_mode & 0777, 0444u);
}

TEST_F(OutputFiles, AreNotMadeInAFolderThatIsReadOnly)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser writes into any folder";
    fs::create_directory(folder.at("closed"));
    chmod(folder.at("closed").c_str(), 0555);
    expectRefusal(folder.at("closed/new.png"), "its folder is read-only");
    chmod(folder.at("closed").c_str(), 0755);
}

TEST_F(OutputFiles, AreNoSockets)
{
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    folder.at("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    expectRefusal(folder.at("socket"), "it is a socket");
    EXPECT_TRUE(S_ISSOCK(statusOf("socket").st_mode));
}

TEST_F(OutputFiles, GoIntoAPipeThatIsRead)
{
    const std::string path = fifo("pipe");
    const Descriptor reader(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    EXPECT_EQ(complaintAbout(path), "");
    EXPECT_EQ(readAll(reader), "new");
    EXPECT_TRUE(S_ISFIFO(statusOf("pipe").st_mode));
}

TEST_F(OutputFiles, WaitForAPipeToTakeMore)
{
    const std::string path = fifo("pipe");
    const Descriptor reader(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const std::string picture(1 << 20, 'x');
    std::string arrived;
    int waits = 0;
    const OutputFile file(path, {}, [&](int, short) {
        ++waits;
        arrived += readAll(reader);
    });
    file.write(picture);
    arrived += readAll(reader);
    EXPECT_EQ(arrived, picture);
    EXPECT_GT(waits, 1);
}

TEST_F(OutputFiles, AreRefusedAndNotWaitedForWhereNobodyReadsThePipe)
{
    const std::string path = fifo("pipe");
    expectRefusal(path, "nobody reads from this pipe");
    EXPECT_TRUE(S_ISFIFO(statusOf("pipe").st_mode));
}

TEST_F(OutputFiles, TellThatThePipesReaderHasGone)
{
    const std::string path = fifo("pipe");
    Descriptor reader(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const OutputFile file(path);
    reader.close();
    EXPECT_THROW(file.write("new"), std::runtime_error);
}

TEST_F(OutputFiles, GoIntoDevicesWhichStay)
{
    constexpr unsigned nullMinor = 3, fullMinor = 7;
    const std::string null = device("null", nullMinor);
    const std::string full = device("full", fullMinor);
    if (null.empty() || access(null.c_str(), W_OK) != 0 || !Descriptor(open(null.c_str(), O_WRONLY | O_CLOEXEC)))
        GTEST_SKIP() << "only the superuser can make devices, and not everywhere";
    EXPECT_EQ(complaintAbout(null), "");
    expectRefusal(full, "No space left on device");
    EXPECT_TRUE(S_ISCHR(statusOf("null").st_mode));
    EXPECT_TRUE(S_ISCHR(statusOf("full").st_mode));
    chmod(null.c_str(), 0444);
    expectRefusal(null, "it is read-only");
    EXPECT_EQ(entries(), 2u);
}

TEST_F(OutputFiles, AreTheProcesssOwnStreamsUnlessItNeedsThem)
{
    const std::string path = folder.put("stream", "");
    const Descriptor stream(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    const std::string name = "/dev/fd/" + std::to_string(stream.number());
    EXPECT_EQ(write(stream.number(), "before ", 7), 7);
    EXPECT_EQ(complaintAbout(name), "");
    EXPECT_EQ(folder.read("stream"), "before new") << "a stream goes on where it was";
    EXPECT_EQ(complaintAbout(name, OutputFile::OwnStreams::refused),
        name + ": cannot be written: this program needs its streams for itself");
    EXPECT_TRUE(OutputFile("/dev/stdout").isStandardOutput());
    EXPECT_FALSE(OutputFile(name).isStandardOutput());
    expectRefusal("/dev/fd/9999", "Bad file descriptor");
    expectRefusal("/proc/self/fd/x", "Bad file descriptor");
}

TEST_F(OutputFiles, LeaveTheOldFileWhereTheNewOneDoesNotFit)
{
    const std::string path = folder.put("old.png", "old");
    struct Stopped { };
    const OutputFile file(path, {}, [](int, short) { throw Stopped(); });
    EXPECT_THROW(file.write("new"), Stopped);
    EXPECT_EQ(folder.read("old.png"), "old");
    EXPECT_EQ(entries(), 1u) << "nothing half written is left beside it";
}
