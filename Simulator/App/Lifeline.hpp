// What a long-running command lives by: it ends on a signal, and when nobody is left who could read its replies.
#pragma once

#include "Simulator/Base/Descriptor.hpp"

#include <chrono>
#include <initializer_list>
#include <optional>

namespace Simulator::App {

/// Thrown out of a wait that must not go on; no std::exception, so that no handler of a request takes it for a failure.
struct Interrupted {
    int signal = 0; // 0 when nobody listens any more
};

class Lifeline {
public:
    /// From here on SIGTERM, SIGINT and SIGHUP arrive at `check` and `wait` only.
    Lifeline();

    /// Input and output of a command that serves; a request in hand when the input ends has a minute left.
    void watchStreams(int input, int output);

    /// Readable when a signal has arrived; then this throws Interrupted.
    int descriptor() const { return m_signals.number(); }
    void throwIfSignalled() const;

    /// Waits for one of the descriptors to be readable; negative ones are left out.
    void waitForInput(std::initializer_list<int> descriptors) const;
    /// Waits until the shell process says or takes something. Throws Interrupted.
    void wait(int descriptor, short events);

private:
    using Clock = std::chrono::steady_clock;

    int timeLeft() const;

    Descriptor m_signals;
    int m_input = -1;
    int m_output = -1;
    std::optional<Clock::time_point> m_end;
};

/// Standard streams that the program was started without lead nowhere; else the next file opened would be one of them.
void openClosedStreams();

/// Ends the process by the signal, as if it had not been caught.
[[noreturn]] void dieOf(int signal);

}
