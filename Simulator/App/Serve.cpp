// Reads requests from standard input and writes replies to standard output.
#include "Simulator/App/Serve.hpp"

#include "Simulator/App/Lifeline.hpp"

#include <array>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace Simulator::App {

using namespace Control;

namespace {

constexpr std::size_t longestRequest = std::size_t(64) << 20;

/// False when nobody reads any more.
bool writeLine(std::string line)
{
    line += '\n';
    for (std::size_t written = 0; written < line.size();) {
        const auto count = write(STDOUT_FILENO, line.data() + written, line.size() - written);
        if (count < 0 && errno != EINTR)
            return false;
        written += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

class Server {
public:
    explicit Server(Supervisor::Options options)
        : m_supervisor(withWait(std::move(options), m_lifeline))
    {
        m_lifeline.watchStreams(STDIN_FILENO, STDOUT_FILENO);
    }

    void run()
    {
        while (answerArrived() && !m_isAtEnd) {
            m_lifeline.waitForInput({STDIN_FILENO, m_supervisor.descriptor()});
            m_supervisor.notice();
            readArrived();
        }
        m_supervisor.stop();
    }

private:
    static Supervisor::Options withWait(Supervisor::Options options, Lifeline& lifeline)
    {
        options.wait = [&lifeline](int descriptor, short events) { lifeline.wait(descriptor, events); };
        return options;
    }

    bool answerArrived()
    {
        while (const auto line = m_lines.next()) {
            const auto reply = line->isTooLong ? tooLong() : answerLine(line->text, m_call);
            if (reply && !writeLine(*reply))
                return false;
        }
        return true;
    }

    static std::optional<std::string> tooLong()
    {
        std::string reason("not a request: a line takes at most ");
        reason.append(std::to_string(longestRequest)).append(" bytes");
        return toLine(errorDocument(nullptr, ProtocolError(ErrorCode::notARequest, reason)));
    }

    void readArrived()
    {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        if (poll(&input, 1, 0) <= 0)
            return;
        std::array<char, 65536> bytes;
        const auto count = read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count > 0) {
            m_lines.feed({bytes.data(), static_cast<std::size_t>(count)});
        } else if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
            m_lines.finish();
            answerArrived();
            m_isAtEnd = true;
        }
    }

    Lifeline m_lifeline;
    Supervisor m_supervisor;
    LineReader m_lines{longestRequest};
    Call m_call
        = [this](const std::string& method, const Json& parameters) { return m_supervisor.call(method, parameters); };
    bool m_isAtEnd = false;
};

}

int serve(Supervisor::Options options)
{
    int signal = 0;
    try {
        Server(std::move(options)).run();
    } catch (const Interrupted& interrupted) {
        signal = interrupted.signal;
    }
    // Only now, when the shell process is gone and its temporary root with it.
    if (signal)
        dieOf(signal);
    return 0;
}

}
