// What the supervisor and the shell process need of a simulated phone, and the messages between them.
#pragma once

#include "Simulator/Control/Dispatcher.hpp"

namespace Simulator::Control {

/// What a shell process is told when it starts.
struct ShellStart {
    Json parameters; // of `phone.start`; "clock" is always there
    std::string root; // host folder that is the phone's `/`, filled with what the parameters put there
    bool isFirst = true; // of this phone: later ones find the root as the last one left it
    bool isSafeMode = false; // the extension stays out
    Json state; // what the process before this one said last of itself, null for the first
};

Json toJson(const ShellStart&);
ShellStart shellStartFrom(const Json&);

/// A simulated phone in its own process.
class Shell {
public:
    virtual ~Shell() = default;

    /// Adds every method but `phone.start` and `phone.stop`; `phone.info` answers "time" and "screen".
    virtual void addMethods(Dispatcher&) = 0;
    /// Brings up the lock screen. Throws to say why it cannot.
    virtual void start(const ShellStart&) = 0;
    /// What the process after this one has to know: time, device, records of the log that nobody took.
    virtual Json state() const = 0;
    /// Something asked for a restart of the shell: the process ends after the request that it is at.
    virtual bool wantsRelaunch() const = 0;
    /// Seconds until work is due under the real clock; nothing under the virtual one, which moves when told.
    virtual std::optional<double> nextDue() const = 0;
    virtual void runDue() = 0;
};

/// The exit status of a shell process that wants to be started again.
inline constexpr int relaunchStatus = 75;

/// Supervisor to shell process, first of all: its ShellStart.
inline constexpr std::string_view startMessage = "shell.start";
/// Supervisor to shell process: draws the screen into the shared frame at "path". {"screen", "tiles", "seconds"}.
inline constexpr std::string_view drawMessage = "shell.draw";
/// Shell process to supervisor, before every reply and before a relaunch: {"state", "relaunch"}. Once the screen was
/// drawn, also after work that ran of its own accord: once, until it is drawn again.
inline constexpr std::string_view stateMessage = "shell.state";

}
