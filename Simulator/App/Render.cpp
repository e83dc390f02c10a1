// Starts a phone, lets it settle and takes its picture.
#include "Simulator/App/Render.hpp"

#include "Simulator/App/Lifeline.hpp"
#include "Simulator/App/StartDoubts.hpp"
#include "Simulator/Control/OutputFile.hpp"

#include <iostream>
#include <unistd.h>

namespace Simulator::App {

using namespace Control;

namespace {

/// A lock screen of the longest settings has long settled by then.
constexpr double settlingSeconds = 2;
constexpr double longestTimer = 86400;

/// One line on standard error that the next one replaces; silent unless that is a terminal.
class Progress {
public:
    ~Progress() { show(""); }
    void show(const std::string& text) const
    {
        if (m_isTerminal)
            std::cerr << "\r\033[K" << text << std::flush;
    }

private:
    bool m_isTerminal = isatty(STDERR_FILENO);
};

void takePicture(const RenderOptions& options, Supervisor& supervisor, const OutputFile& output)
{
    const Progress progress;
    const Workshop workshop;
    const std::string picture = workshop.at("lock.png");
    const Json start = startParameters(options.start, workshop);
    sayDoubts(options.start);
    progress.show("starting the phone …");
    supervisor.call("phone.start", start);
    if (const auto seconds = timerSeconds(options.start))
        supervisor.call("phone.timer", {{"seconds", *seconds}});
    progress.show("waiting for the lock screen to settle …");
    supervisor.call("clock.settle", {{"seconds", settlingSeconds}});
    progress.show("taking the picture …");
    supervisor.call("screen.capture", {{"path", picture}});
    supervisor.stop();
    output.write(bytesOf(picture));
}

}

int render(const RenderOptions& options, Supervisor::Options supervisorOptions)
{
    int signal = 0;
    bool saysPath = true;
    try {
        Lifeline lifeline;
        supervisorOptions.wait = [&](int descriptor, short events) { lifeline.wait(descriptor, events); };
        const OutputFile output(options.output, OutputFile::OwnStreams::taken, supervisorOptions.wait);
        // Nothing follows a picture on standard output.
        saysPath = !output.isStandardOutput();
        Supervisor supervisor(std::move(supervisorOptions));
        takePicture(options, supervisor, output);
    } catch (const Interrupted& interrupted) {
        signal = interrupted.signal;
    }
    if (signal)
        dieOf(signal);
    if (saysPath)
        std::cout << options.output << std::endl;
    return 0;
}

}
