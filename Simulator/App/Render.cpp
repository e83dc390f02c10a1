// Starts a phone, lets it settle and takes its picture.
#include "Simulator/App/Render.hpp"

#include "Simulator/App/Lifeline.hpp"
#include "Simulator/Control/Methods.hpp"
#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Control/Types.hpp"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace Simulator::App {

using namespace Control;
namespace fs = std::filesystem;

namespace {

// A lock screen of the longest settings has long settled by then.
constexpr double settlingSeconds = 2;

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

// A host folder for what is made on the way, removed with its owner.
class Workshop {
public:
    Workshop() = default;
    std::string put(const std::string& name, const std::string& bytes) const
    {
        const std::string path = _folder.path() + "/" + name;
        std::ofstream file(path, std::ios::binary);
        if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
            throw Failure("cannot write " + path);
        return path;
    }

private:
    RootFolder _folder;
};

std::string bytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    if (!file || !fs::is_regular_file(path) || !(bytes << file.rdbuf()))
        throw Failure(path + ": cannot be read; an existing file that is not empty is needed");
    return bytes.str();
}

bool looksLikeJson(const std::string& bytes)
{
    const auto first = bytes.find_first_not_of(" \t\r\n");
    return first != std::string::npos && bytes[first] == '{';
}

Json jsonOf(const std::string& path, const std::string& bytes)
{
    try {
        return parseDocument(bytes);
    } catch (const ProtocolError& error) {
        throw Failure(path + ": " + error.what());
    }
}

// The host path of the file as the phone stores it: a property list as it is, JSON turned into one.
std::string storedFile(const std::string& path, const std::string& name, const Workshop& workshop)
{
    const std::string bytes = bytesOf(path);
    if (isPropertyListDictionary(bytes))
        return path;
    if (!looksLikeJson(bytes))
        throw Failure(path + ": neither a property list (XML or binary) with a dictionary nor JSON with an object");
    const Json values = jsonOf(path, bytes);
    if (const auto wrong = complaint(name, mapOf(storedText(), propertyList()), values))
        throw Failure(path + ": " + *wrong);
    return workshop.put(name + ".plist", propertyListXml(values));
}

void addDevice(Json& start, const std::string& path)
{
    const Json device = jsonOf(path, bytesOf(path));
    if (const auto wrong = complaint("device", object(deviceParameters()), device))
        throw Failure(path + ": " + *wrong);
    // What stands on the command line counts more.
    for (const auto& [name, value] : device.items())
        start.emplace(name, value);
}

std::string jpegFile(const std::string& path)
{
    if (!bytesOf(path).starts_with("\xFF\xD8\xFF"))
        throw Failure(path + ": not a JPEG");
    return path;
}

Json startParameters(const RenderOptions& options, const Workshop& workshop)
{
    Json start = options.start;
    Json files = Json::object();
    if (!options.settings.empty())
        files[settingsPath] = storedFile(options.settings, "settings", workshop);
    if (!options.colours.empty())
        files[coloursPath] = storedFile(options.colours, "colours", workshop);
    if (!files.empty())
        start["files"] = files;
    if (!options.wallpaper.empty())
        start["wallpaper"] = jpegFile(options.wallpaper);
    if (!options.fonts.empty())
        start["fonts"] = options.fonts;
    if (!options.device.empty())
        addDevice(start, options.device);
    return start;
}

// Beside the picture-to-be, so that it takes its place in one step.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& output)
        : _output(output)
        , _path(output + ".part-" + std::to_string(getpid()))
    {
        if (!hostDestination().accepts(output))
            throw Failure(output + ": a picture needs a file name in a folder that exists and can be written");
    }
    ~UnfinishedFile()
    {
        std::error_code ignored;
        fs::remove(_path, ignored);
    }
    const std::string& path() const { return _path; }
    void finish() const { fs::rename(_path, _output); }

private:
    std::string _output;
    std::string _path;
};

void takePicture(const RenderOptions& options, Supervisor& supervisor)
{
    const Progress progress;
    const Workshop workshop;
    const UnfinishedFile picture(options.output);
    progress.show("starting the phone …");
    supervisor.call("phone.start", startParameters(options, workshop));
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
