// Makes, fills and removes the phone's root folder.
#include "Simulator/Control/RootFolder.hpp"

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Control/PropertyList.hpp"

#include <system_error>

namespace Simulator::Control {

namespace fs = std::filesystem;

namespace {

std::string bytesOf(const fs::path& path)
{
    auto bytes = readHostFile(path);
    if (!bytes)
        throw std::runtime_error("cannot read " + path.string());
    return std::move(bytes.value);
}

}

RootFolder::RootFolder()
{
    m_files.setRoot(m_temporary.emplace("lyr-phone").path());
}

RootFolder::RootFolder(const std::string& given)
{
    m_files.setRoot(given);
}

void RootFolder::fill(const Json& parameters)
{
    const Json files = parameters.value("files", Json::object());
    for (const auto& [phonePath, from] : files.items())
        copy(from.get<std::string>(), phonePath);
    if (const auto settings = parameters.find("settings"); settings != parameters.end())
        put(settingsPath, propertyListXml(*settings));
    if (const auto colours = parameters.find("colours"); colours != parameters.end())
        put(coloursPath, propertyListXml(*colours));
    if (const auto wallpaper = parameters.find("wallpaper"); wallpaper != parameters.end()) {
        if (wallpaper->is_null())
            m_files.remove(wallpaperPath);
        else
            copy(wallpaper->get<std::string>(), std::string(wallpaperPath));
    }
    for (const Json& font : parameters.value("fonts", Json::array())) {
        const fs::path from = font.get<std::string>();
        copy(from, std::string(userFontFolder) + from.filename().string());
    }
}

void RootFolder::put(std::string_view phonePath, const std::string& bytes)
{
    if (const int error = m_files.put(phonePath, bytes))
        throw std::system_error(error, std::generic_category(), "cannot write the phone's " + std::string(phonePath));
}

void RootFolder::copy(const fs::path& from, const std::string& phonePath)
{
    if (!fs::is_directory(from)) {
        put(phonePath, bytesOf(from));
        return;
    }
    if (const int error = m_files.createFolder(phonePath, true); error && !m_files.isFolder(phonePath))
        throw std::system_error(error, std::generic_category(), "cannot make the phone's folder " + phonePath);
    for (const auto& entry : fs::directory_iterator(from))
        copy(entry.path(), phonePath + "/" + entry.path().filename().string());
}

}
