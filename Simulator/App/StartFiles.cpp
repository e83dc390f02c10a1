// Reads the files that options name, and says in one line what is wrong with one.
#include "Simulator/App/StartFiles.hpp"

#include "Simulator/App/FactoryContent.hpp"
#include "Simulator/App/PhoneInUse.hpp"
#include "Simulator/App/WeatherGlyph.hpp"
#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Control/Methods.hpp"
#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Control/Types.hpp"

#include <filesystem>
#include <fstream>

namespace Simulator::App {

using namespace Control;
namespace fs = std::filesystem;

namespace {

bool looksLikeJson(const std::string& bytes)
{
    const auto first = bytes.find_first_not_of(" \t\r\n");
    return first != std::string::npos && bytes[first] == '{';
}

/// The host path of the file as the phone stores it: a property list as it is, JSON turned into one.
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

constexpr const char* timerMember = "timer";
constexpr double longestTimer = 86400;

/// What `device.set` takes, and the seconds of a timer that runs.
Json deviceIn(const std::string& path)
{
    Schema members = deviceParameters();
    members.push_back({timerMember, number(0, longestTimer)});
    Json device = jsonOf(path, bytesOf(path));
    if (const auto wrong = complaint("device", object(members), device))
        throw Failure(path + ": " + *wrong);
    return device;
}

void addDevice(Json& start, const Json& device)
{
    // What stands on the command line counts more.
    for (const auto& [name, value] : device.items()) {
        if (name != timerMember)
            start.emplace(name, value);
    }
}

std::string timeAtStart(const Json& start)
{
    return start.contains("time") ? start.at("time").get<std::string>()
                                  : localTimeNow(start.value("timeZone", "UTC"));
}

std::string jpegFile(const std::string& path)
{
    if (!bytesOf(path).starts_with("\xFF\xD8\xFF"))
        throw Failure(path + ": not a JPEG");
    return path;
}

}

std::string bytesOf(const std::string& path)
{
    std::error_code ignored;
    auto bytes = fs::is_regular_file(path, ignored) ? readHostFile(path).value : std::string();
    if (bytes.empty())
        throw Failure(path + ": cannot be read; an existing file that is not empty is needed");
    return bytes;
}

Json jsonOf(const std::string& path, const std::string& bytes)
{
    try {
        return parseDocument(bytes);
    } catch (const ProtocolError& error) {
        throw Failure(path + ": " + error.what());
    }
}

std::string Workshop::put(const std::string& name, const std::string& bytes) const
{
    const std::string path = at(name);
    std::ofstream file(path, std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
        throw Failure("cannot write " + path);
    return path;
}

Json startParameters(const StartOptions& options, const Workshop& workshop)
{
    Json start = options.phone;
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
        addDevice(start, deviceIn(options.device));
    else if (!options.isBare)
        addDevice(start, phoneInUse(timeAtStart(start)));
    if (const auto weather = start.find("weather"); weather != start.end() && !weather->contains("image"))
        *weather = withGlyph(*weather, timeAtStart(start), glyphFolder());
    return start;
}

std::optional<double> timerSeconds(const StartOptions& options)
{
    const Json device = options.device.empty() ? Json::object() : deviceIn(options.device);
    return device.contains(timerMember) ? std::optional(device.at(timerMember).get<double>()) : std::nullopt;
}

}
