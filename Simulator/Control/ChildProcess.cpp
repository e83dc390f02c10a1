// Starts and ends the shell process.
#include "Simulator/Control/ChildProcess.hpp"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace Simulator::Control {

namespace {

/// A process that is told to end has this long before it is killed.
constexpr std::chrono::milliseconds gracePeriod{2000};

[[noreturn]] void fail(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

/// Between fork and exec only calls that are safe there. What the shell prints must not get between the replies.
[[noreturn]] void becomeShell(char* const* arguments, int socket, pid_t supervisor)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != supervisor)
        _exit(1);
    setpgid(0, 0);
    fcntl(socket, F_SETFD, 0);
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    signal(SIGPIPE, SIG_DFL);
    execv(arguments[0], arguments);
    _exit(127);
}

}

bool Ending::isExitWith(int status) const
{
    return WIFEXITED(m_waitStatus) && WEXITSTATUS(m_waitStatus) == status;
}

std::string Ending::text() const
{
    if (WIFEXITED(m_waitStatus))
        return "exit status " + std::to_string(WEXITSTATUS(m_waitStatus));
    const int number = WTERMSIG(m_waitStatus);
    const char* name = sigabbrev_np(number);
    return "signal "
        + (name ? "SIG" + std::string(name) + " (" + std::to_string(number) + ")" : std::to_string(number));
}

ChildProcess::ChildProcess(const std::vector<std::string>& command, Wait wait)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        fail("cannot make a socket for the shell process");
    Descriptor own(ends[0]);
    Descriptor childs(ends[1]);

    std::vector<std::string> words = command;
    words.insert(words.end(), {"--fd", std::to_string(childs.number())});
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    const pid_t self = getpid();
    m_pid = fork();
    if (m_pid < 0)
        fail("cannot start the shell process");
    if (m_pid == 0)
        becomeShell(arguments.data(), childs.number(), self);
    m_channel.emplace(std::move(own), std::move(wait));
}

ChildProcess::~ChildProcess()
{
    if (m_pid > 0) {
        kill();
        end();
    }
}

void ChildProcess::kill()
{
    if (m_pid > 0)
        ::kill(m_pid, SIGKILL);
}

Ending ChildProcess::end()
{
    m_channel->close();
    if (!endsWithin(gracePeriod))
        kill();
    int status = 0;
    while (waitpid(m_pid, &status, 0) < 0 && errno == EINTR) { }
    m_pid = -1;
    return Ending(status);
}

bool ChildProcess::endsWithin(std::chrono::milliseconds time) const
{
    constexpr std::chrono::milliseconds step{1};
    for (; time.count() > 0; time -= step) {
        siginfo_t ended{};
        if (waitid(P_PID, static_cast<id_t>(m_pid), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 && ended.si_pid == m_pid)
            return true;
        std::this_thread::sleep_for(step);
    }
    return false;
}

}
