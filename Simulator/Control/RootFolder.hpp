// The host folder that is the phone's `/`: a given one, or a temporary one that goes with its owner.
#pragma once

#include "Product/Names.hpp"
#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Control/Envelope.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include <filesystem>
#include <optional>

namespace Simulator::Control {

/// Where the phone keeps what `phone.start` puts there.
inline constexpr std::string_view settingsPath = LYR_SETTINGS_FILE;
inline constexpr std::string_view coloursPath = LYR_COLOUR_FILE;
inline constexpr std::string_view wallpaperPath = LYR_WALLPAPER;
inline constexpr std::string_view userFontFolder = LYR_FONTS "/";

class RootFolder {
public:
    /// Makes a temporary folder.
    RootFolder();
    explicit RootFolder(const std::string& given);

    const std::string& path() const { return m_files.root(); }

    /// Puts the files, settings, colours, wallpaper and fonts of `phone.start` into the folder.
    void fill(const Json& startParameters);

private:
    void put(std::string_view phonePath, const std::string& bytes);
    void copy(const std::filesystem::path& from, const std::string& phonePath);

    std::optional<TemporaryFolder> m_temporary;
    PhoneFiles m_files;
};

}
