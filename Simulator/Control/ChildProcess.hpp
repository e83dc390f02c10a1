// The shell process as its supervisor holds it: started with one end of a socket, ended with its owner.
#pragma once

#include "Simulator/Control/Channel.hpp"

#include <chrono>
#include <sys/types.h>
#include <vector>

namespace Simulator::Control {

/// How a process ended.
class Ending {
public:
    explicit Ending(int waitStatus)
        : m_waitStatus(waitStatus)
    {
    }
    bool isExitWith(int status) const;
    /// "signal SIGSEGV (11)" or "exit status 3".
    std::string text() const;

private:
    int m_waitStatus;
};

class ChildProcess {
public:
    /// Runs the command with `--fd N` added, N being the child's end of the socket.
    ChildProcess(const std::vector<std::string>& command, Wait);
    /// Kills the process if it still runs.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return m_pid; }
    Channel& channel() { return *m_channel; }

    /// Closes the socket, which tells the process to end, and kills it if it does not.
    Ending end();
    void kill();

private:
    bool endsWithin(std::chrono::milliseconds) const;

    pid_t m_pid = -1; // -1 once it was waited for
    std::optional<Channel> m_channel;
};

}
