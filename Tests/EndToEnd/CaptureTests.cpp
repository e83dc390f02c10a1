// Pictures of the screen into files of the host: files are replaced, pipes are filled, all else is refused.
#include "Tests/EndToEnd/Scenario.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int badParameters = -32602;
const std::string pngStart = "\x89PNG";

class Capture : public testing::Test {
protected:
    Capture() { phone.start(eveningPhone().screen(100, 200, 1)); }

    int errorOf(const std::string& path) { return phone.errorCode("screen.capture", {{"path", path}}); }

    Support::TemporaryFolder folder;
    Phone phone = Phone::notStarted();
};

}

TEST_F(Capture, ReplacesAFileAndWhatALinkLeadsTo)
{
    folder.put("old.png", "old");
    std::filesystem::create_symlink("old.png", folder.at("link.png"));
    EXPECT_EQ(errorOf(folder.at("link.png")), 0);
    EXPECT_TRUE(folder.read("old.png").starts_with(pngStart));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.at("link.png")));
    EXPECT_EQ(errorOf(folder.at("new.png")), 0);
    EXPECT_EQ(folder.read("new.png"), folder.read("old.png"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 3);
}

TEST_F(Capture, FillsAPipeThatIsRead)
{
    mkfifo(folder.at("pipe").c_str(), 0600);
    EXPECT_EQ(errorOf(folder.at("pipe")), badParameters) << "nobody reads yet";
    const int reader = open(folder.at("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(errorOf(folder.at("pipe")), 0);
    std::string start(pngStart.size(), '\0');
    EXPECT_EQ(read(reader, start.data(), start.size()), static_cast<ssize_t>(start.size()));
    close(reader);
    EXPECT_EQ(start, pngStart);
}

TEST_F(Capture, LeavesAloneWhatMayNotBeWritten)
{
    chmod(folder.put("mine.png", "kept").c_str(), 0444);
    for (const std::string& path :
        {folder.at("mine.png"), folder.path().string(), folder.at("none/new.png"), std::string()})
        EXPECT_EQ(errorOf(path), badParameters) << path;
    EXPECT_EQ(folder.read("mine.png"), "kept");
}

TEST_F(Capture, StaysOutOfTheProgramsStreams)
{
    for (const char* stream : {"/dev/stdout", "/dev/stderr", "/dev/fd/3", "/proc/self/fd/0"})
        EXPECT_EQ(errorOf(stream), badParameters) << stream;
    EXPECT_EQ(phone.info().at("safeMode"), false);
}

TEST_F(Capture, SaysWhatIsWrong)
{
    chmod(folder.put("mine.png", "kept").c_str(), 0444);
    try {
        phone.call("screen.capture", {{"path", folder.at("mine.png")}});
        FAIL();
    } catch (const Support::ControlError& error) {
        EXPECT_EQ(std::string(error.what()),
            "parameter \"path\": " + folder.at("mine.png") + ": cannot be written: it is read-only");
    }
}
