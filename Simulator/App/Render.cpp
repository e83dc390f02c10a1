// Starts a phone, lets it settle and takes its picture.
#include "Simulator/App/Render.hpp"

#include "Simulator/App/Lifeline.hpp"

#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace Simulator::App {

using namespace Control;
namespace fs = std::filesystem;

namespace {

// A lock screen of the longest settings has long settled by then.
constexpr double settlingSeconds = 2;
constexpr double longestTimer = 86400;

// One line on standard error that the next one replaces; silent unless that is a terminal.
class Progress {
public:
    ~Progress() { show(""); }
    void show(const std::string& text) const
    {
        if (_isTerminal)
            std::cerr << "\r\033[K" << text << std::flush;
    }

private:
    bool _isTerminal = isatty(STDERR_FILENO);
};

void takePicture(const RenderOptions& options, Supervisor& supervisor)
{
    const Progress progress;
    const Workshop workshop;
    const UnfinishedFile picture(options.output, "a picture");
    progress.show("starting the phone …");
    supervisor.call("phone.start", startParameters(options.start, workshop));
    if (const auto seconds = timerSeconds(options.start))
        supervisor.call("phone.timer", {{"seconds", *seconds}});
    progress.show("waiting for the lock screen to settle …");
    supervisor.call("clock.settle", {{"seconds", settlingSeconds}});
    progress.show("taking the picture …");
    supervisor.call("screen.capture", {{"path", fs::absolute(picture.path()).string()}});
    supervisor.stop();
    picture.finish();
}

}

int render(const RenderOptions& options, Supervisor::Options supervisorOptions)
{
    int signal = 0;
    try {
        Lifeline lifeline;
        supervisorOptions.wait = [&](int descriptor, short events) { lifeline.wait(descriptor, events); };
        Supervisor supervisor(std::move(supervisorOptions));
        takePicture(options, supervisor);
    } catch (const Interrupted& interrupted) {
        signal = interrupted.signal;
    }
    if (signal)
        dieOf(signal);
    std::cout << options.output << std::endl;
    return 0;
}

}
