// Looks at what a path names before it is written.
#include "Simulator/Control/OutputFile.hpp"

#include "Simulator/Base/UnfinishedFile.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>

namespace Simulator::Control {

namespace fs = std::filesystem;

namespace {

constexpr int mostLinks = 40;

fs::path ownStreams()
{
    return "/proc/" + std::to_string(getpid()) + "/fd";
}

/// Where the links lead, whether or not there is anything; empty where a folder on the way is missing. The links of a
/// process's streams are left: they only look like paths.
fs::path followed(const std::string& given)
{
    std::error_code error;
    fs::path path = given.empty() ? fs::path() : fs::absolute(given, error);
    for (int links = 0; links <= mostLinks && path.has_filename(); ++links) {
        const fs::path folder = fs::canonical(path.parent_path(), error);
        if (error)
            return {};
        path = folder / path.filename();
        if (folder == ownStreams() || !fs::is_symlink(path, error))
            return path;
        path = folder / fs::read_symlink(path, error);
    }
    return {};
}

/// A reader that has gone is told by an error.
class WithoutPipeSignal {
public:
    WithoutPipeSignal() = default;
    ~WithoutPipeSignal() { std::signal(SIGPIPE, m_before); }
    WithoutPipeSignal(const WithoutPipeSignal&) = delete;
    WithoutPipeSignal& operator=(const WithoutPipeSignal&) = delete;

private:
    void (*m_before)(int) = std::signal(SIGPIPE, SIG_IGN);
};

}

OutputFile::OutputFile(const std::string& path, OwnStreams streams, Wait wait)
    : m_given(path)
    , m_wait(std::move(wait))
    , m_path(followed(path))
{
    if (m_path.empty())
        refuse("a file name in a folder that exists is needed");
    if (m_path.parent_path() == ownStreams())
        openStream(streams);
    else
        look();
}

void OutputFile::openStream(OwnStreams streams)
{
    if (streams == OwnStreams::refused)
        refuse("this program needs its streams for itself");
    const std::string name = m_path.filename();
    int number = -1;
    std::from_chars(name.data(), name.data() + name.size(), number);
    m_descriptor = Descriptor(fcntl(number, F_DUPFD_CLOEXEC, 3));
    if (!m_descriptor)
        refuseWithError();
}

void OutputFile::look()
{
    struct stat status {};
    if (stat(m_path.c_str(), &status) != 0) {
        if (errno != ENOENT)
            refuseWithError();
        return checkFolder();
    }
    if (S_ISDIR(status.st_mode))
        refuse("it is a folder");
    if (S_ISSOCK(status.st_mode))
        refuse("it is a socket");
    // The mode holds for the superuser too, whom the system lets do anything.
    constexpr mode_t writeBits = 0222;
    if ((status.st_mode & writeBits) == 0 || access(m_path.c_str(), W_OK) != 0)
        refuse("it is read-only");
    if (S_ISREG(status.st_mode)) {
        m_replaced = status;
        return checkFolder();
    }
    // A pipe that nobody reads would make the program wait.
    m_descriptor = Descriptor(open(m_path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!m_descriptor && errno == ENXIO && S_ISFIFO(status.st_mode))
        refuse("nobody reads from this pipe");
    if (!m_descriptor)
        refuseWithError();
}

void OutputFile::checkFolder() const
{
    if (access(m_path.parent_path().c_str(), W_OK | X_OK) != 0)
        refuse("its folder is read-only");
}

void OutputFile::write(std::string_view bytes) const
{
    if (m_descriptor)
        send(m_descriptor.number(), bytes);
    else
        replace(bytes);
}

void OutputFile::replace(std::string_view bytes) const
{
    UnfinishedFile file(m_path);
    if (!file)
        refuseWithError();
    send(file.descriptor(), bytes);
    if (m_replaced) {
        constexpr mode_t permissions = 0777;
        // Only the superuser can give a file away, and only to others need it be given.
        [[maybe_unused]] const int ignored = fchown(file.descriptor(), m_replaced->st_uid, m_replaced->st_gid);
        fchmod(file.descriptor(), m_replaced->st_mode & permissions);
    }
    if (const int error = file.takePlace())
        refuse(std::strerror(error));
}

/// No more at a time than a pipe that is ready takes without waiting.
void OutputFile::send(int descriptor, std::string_view bytes) const
{
    const WithoutPipeSignal ignored;
    while (!bytes.empty()) {
        m_wait(descriptor, POLLOUT);
        const auto count = ::write(descriptor, bytes.data(), std::min<std::size_t>(bytes.size(), PIPE_BUF));
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (count < 0 && errno != EINTR && errno != EAGAIN)
            refuseWithError();
    }
}

bool OutputFile::isStandardOutput() const
{
    struct stat own {};
    struct stat standard {};
    return m_descriptor && fstat(m_descriptor.number(), &own) == 0 && fstat(STDOUT_FILENO, &standard) == 0
        && own.st_dev == standard.st_dev && own.st_ino == standard.st_ino;
}

void OutputFile::refuse(const std::string& why) const
{
    throw std::runtime_error(m_given + ": cannot be written: " + why);
}

void OutputFile::refuseWithError() const
{
    refuse(std::strerror(errno));
}

}
