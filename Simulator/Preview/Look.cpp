// Looks read from and written to the files of a phone.
#include "Simulator/Preview/Look.hpp"

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Text/PropertyList.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <set>
#include <span>

namespace Simulator::Preview {

namespace fs = std::filesystem;
using namespace Control;

namespace {

/// The settings that hold the name of a font.
const std::vector<std::string> fontSettings{"customFontPickerTime", "customFontPicker"};

[[noreturn]] void refuse(const std::string& message)
{
    throw ProtocolError(ErrorCode::badParameters, message);
}

bool contains(const std::vector<std::string>& names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

PhoneFiles filesUnder(const std::string& root)
{
    PhoneFiles files;
    files.setRoot(root);
    return files;
}

/// Null for what a look does not hold: dates, data, lists.
Json scalarOf(const PropertyList& list)
{
    if (const auto* text = std::get_if<std::string>(&list.value))
        return *text;
    if (const auto* flag = std::get_if<bool>(&list.value))
        return *flag;
    if (const auto* whole = std::get_if<std::int64_t>(&list.value))
        return *whole;
    if (const auto* number = std::get_if<double>(&list.value))
        return *number;
    return nullptr;
}

/// The known values of a stored file; none where there is no file.
Json storedIn(const PhoneFiles& files, std::string_view path, const std::vector<std::string>& known)
{
    Json values = Json::object();
    const auto bytes = files.fetch(path);
    if (bytes.error == ENOENT)
        return values;
    const auto list = bytes ? readPropertyList(bytes.value) : std::nullopt;
    const auto* dictionary = list ? std::get_if<PropertyListDictionary>(&list->value) : nullptr;
    if (!dictionary)
        refuse(files.hostPath(path) + ": no property list with a dictionary");
    for (const auto& [key, value] : *dictionary) {
        Json scalar = scalarOf(value);
        if (contains(known, key) && !scalar.is_null())
            values[key] = std::move(scalar);
    }
    return values;
}

void checkValues(const Json& look, const char* name, const std::vector<std::string>& known, bool (*fits)(const Json&),
    const char* takes)
{
    if (!look.contains(name) || !look[name].is_object())
        refuse("the look's \"" + std::string(name) + "\" takes an object");
    for (const auto& [key, value] : look[name].items()) {
        if (!contains(known, key))
            refuse("the look's \"" + std::string(name) + "\" has the unknown key " + quote(key)
                + "; this program knows looks of version " + std::to_string(lookVersion));
        const bool hasNul = value.is_string() && value.get_ref<const std::string&>().find('\0') != std::string::npos;
        if (!fits(value) || hasNul)
            refuse("the look's " + quote(key) + " takes " + takes + ", not " + quote(value));
    }
}

void checkLook(const Json& look)
{
    if (!look.is_object() || !look.contains("lyrlook"))
        refuse("no look: an object with \"lyrlook\", its version, is needed");
    const Json& version = look["lyrlook"];
    if (!version.is_number_integer() || version < 1)
        refuse("the look's version \"lyrlook\" takes a whole number from 1, not " + quote(version));
    if (version > lookVersion)
        refuse("the look is of version " + quote(version) + "; this program knows looks up to version "
            + std::to_string(lookVersion));
    for (const auto& [name, part] : look.items()) {
        if (!contains({"lyrlook", "settings", "colours", "fonts"}, name))
            refuse("the look has the unknown member " + quote(name) + "; this program knows looks of version "
                + std::to_string(lookVersion));
    }
    checkValues(
        look, "settings", lookSettings(),
        [](const Json& value) { return value.is_string() || value.is_boolean() || value.is_number(); },
        "text, a number, true or false");
    checkValues(
        look, "colours", lookColours(), [](const Json& value) { return value.is_string(); }, "text");
    const Json fonts = look.value("fonts", Json::array());
    if (!fonts.is_array()
        || !std::all_of(fonts.begin(), fonts.end(), [](const Json& name) { return name.is_string(); }))
        refuse("the look's \"fonts\" takes a list of names");
}

std::string nameOfFont(const fs::path& path)
{
    const auto content = readHostFile(path);
    const auto names = Graphics::FontCatalogue::namesOf(std::as_bytes(std::span(content.value)));
    return names ? names->postScriptName : std::string();
}

/// The system's, the extension's and the user's.
std::set<std::string> fontsOfPhone(const PhoneFiles& files)
{
    std::vector<fs::path> paths = Graphics::installedSystemFonts();
    for (const std::string_view folder :
        {std::string_view("/Library/Application Support/lyr.bundle/"), userFontFolder}) {
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(files.hostPath(folder), error)) {
            if (entry.is_regular_file(error))
                paths.push_back(entry.path());
        }
    }
    std::set<std::string> names;
    for (const fs::path& path : paths)
        names.insert(nameOfFont(path));
    return names;
}

void put(PhoneFiles& files, std::string_view path, const std::string& bytes)
{
    if (const int error = files.put(path, bytes))
        throw ProtocolError(ErrorCode::internal, files.hostPath(path) + ": " + strerror(error));
}

}

Json readLook(const std::string& root)
{
    const PhoneFiles files = filesUnder(root);
    const Json settings = storedIn(files, settingsPath, lookSettings());
    Json fonts = Json::array();
    for (const std::string& key : fontSettings) {
        if (settings.contains(key) && settings[key].is_string()
            && std::count(fonts.begin(), fonts.end(), settings[key]) == 0)
            fonts.push_back(settings[key]);
    }
    return {{"lyrlook", lookVersion}, {"settings", settings}, {"colours", storedIn(files, coloursPath, lookColours())},
        {"fonts", fonts}};
}

Json writeLook(const std::string& root, const Json& look)
{
    checkLook(look);
    PhoneFiles files = filesUnder(root);
    const auto before = files.fetch(settingsPath);
    put(files, settingsPath, propertyListXml(look["settings"]));
    try {
        put(files, coloursPath, propertyListXml(look["colours"]));
    } catch (const ProtocolError&) {
        if (before)
            files.put(settingsPath, before.value);
        else
            files.remove(settingsPath);
        throw;
    }
    Json missing = Json::array();
    const Json fonts = look.value("fonts", Json::array());
    const std::set<std::string> present = fonts.empty() ? std::set<std::string>() : fontsOfPhone(files);
    for (const std::string name : fonts)
        if (!present.contains(name))
            missing.push_back(name);
    return missing;
}

}
