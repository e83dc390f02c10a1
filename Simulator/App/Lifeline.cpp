// Signals by a descriptor, and hang-ups of the standard streams.
#include "Simulator/App/Lifeline.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>
#include <vector>

namespace Simulator::App {

namespace {

constexpr std::chrono::seconds timeAfterEndOfInput{60};

sigset_t endingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, signal);
    return signals;
}

}

Lifeline::Lifeline()
{
    const sigset_t signals = endingSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    m_signals = Descriptor(signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

void Lifeline::watchStreams(int input, int output)
{
    m_input = input;
    m_output = output;
}

void Lifeline::waitForInput(std::initializer_list<int> descriptors) const
{
    std::vector<pollfd> entries{{m_signals.number(), POLLIN, 0}};
    for (const int descriptor : descriptors)
        entries.push_back({descriptor, POLLIN, 0});
    while (poll(entries.data(), entries.size(), -1) < 0 && errno == EINTR) { }
    throwIfSignalled();
}

void Lifeline::wait(int descriptor, short events)
{
    for (;;) {
        // Without events of their own the streams report only that their other end is gone.
        pollfd entries[]{
            {descriptor, events, 0}, {m_signals.number(), POLLIN, 0}, {m_end ? -1 : m_input, 0, 0}, {m_output, 0, 0}};
        const int count = poll(entries, std::size(entries), timeLeft());
        throwIfSignalled();
        if (count > 0 && entries[0].revents)
            return;
        if (count > 0 && entries[3].revents)
            throw Interrupted{};
        if (count > 0 && entries[2].revents)
            m_end = Clock::now() + timeAfterEndOfInput;
        if (count == 0 && m_end)
            throw Interrupted{};
    }
}

int Lifeline::timeLeft() const
{
    if (!m_end)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*m_end - Clock::now());
    return static_cast<int>(std::max<std::int64_t>(0, left.count()));
}

void Lifeline::throwIfSignalled() const
{
    signalfd_siginfo arrived;
    if (read(m_signals.number(), &arrived, sizeof arrived) == sizeof arrived)
        throw Interrupted{static_cast<int>(arrived.ssi_signo)};
}

void openClosedStreams()
{
    // The lowest free number is taken, so all three are there once a higher one is had.
    int stream = STDIN_FILENO;
    while (stream >= 0 && stream <= STDERR_FILENO)
        stream = open("/dev/null", O_RDWR);
    close(stream);
}

void dieOf(int signal)
{
    std::signal(signal, SIG_DFL);
    const sigset_t signals = endingSignals();
    std::raise(signal);
    sigprocmask(SIG_UNBLOCK, &signals, nullptr);
    std::abort();
}

}
