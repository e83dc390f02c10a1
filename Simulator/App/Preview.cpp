// Serves the phone until a signal ends it.
#include "Simulator/App/Preview.hpp"

#include "Simulator/App/FactoryContent.hpp"
#include "Simulator/App/Lifeline.hpp"
#include "Simulator/App/StartDoubts.hpp"
#include "Simulator/App/WeatherGlyph.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Preview/Server.hpp"

#include <filesystem>
#include <iostream>

namespace Simulator::App {

using namespace Control;

/// The editor changes a colour file, but makes none: that is the settings pane's work, which the page does here.
static void provideColourFile(RootFolder& root)
{
    if (!std::filesystem::exists(root.path() + std::string(coloursPath)))
        root.fill({{"colours", Json::object()}});
}

int preview(const PreviewOptions& options, Supervisor::Options supervisorOptions)
{
    int signal = 0;
    try {
        Lifeline lifeline;
        supervisorOptions.wait = [&](int descriptor, short events) { lifeline.wait(descriptor, events); };
        const Workshop workshop;
        const Json start = startParameters(options.start, workshop);
        sayDoubts(options.start);
        if (!options.root.empty())
            std::filesystem::create_directory(options.root);
        RootFolder root = options.root.empty() ? RootFolder() : RootFolder(options.root);
        provideColourFile(root);
        Preview::ServerOptions server;
        server.page = pageFolder();
        server.port = static_cast<unsigned short>(options.port);
        server.root = root.path();
        server.start = start;
        server.withGlyph
            = [](const Json& weather, const std::string& time) { return withGlyph(weather, time, glyphFolder()); };
        server.interruption = lifeline.descriptor();
        server.interrupt = [&] { lifeline.throwIfSignalled(); };
        server.ready = [](const std::string& address) { std::cout << address << std::endl; };
        Preview::serve(std::move(supervisorOptions), server);
    } catch (const Interrupted& interrupted) {
        signal = interrupted.signal;
    }
    // Only now, when the shell process is gone and its temporary root with it.
    if (signal)
        dieOf(signal);
    return 0;
}

}
