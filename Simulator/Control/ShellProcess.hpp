// The shell process's side of the socket: serves requests and keeps the real clock's work going between them.
#pragma once

#include "Simulator/Control/Channel.hpp"
#include "Simulator/Control/Shell.hpp"

namespace Simulator::Control {

class ShellProcess {
public:
    ShellProcess(Shell&, Descriptor socket);

    /// Until the supervisor goes or the shell wants a relaunch. Answers the exit status.
    int run();

private:
    void serve(const Json& document);
    /// What is due now; false once the phone wants to start anew.
    bool runDue();
    void sayState();
    void waitForWork();

    Shell& m_shell;
    Channel m_channel;
    Dispatcher m_dispatcher;
    bool m_isStarted = false;
    bool m_isLookedAt = false; // the screen was drawn, and nothing ran since that was not asked for
};

}
