// The phone's fonts: the system's own and those registered while it runs, by name. Independent of the machine's
// font configuration, so that text looks the same everywhere. For one thread.
#pragma once

#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Graphics/FontParts.hpp"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator::Graphics {

class Typesetter;

enum class RegistrationError { none, fileNotFound, invalid, alreadyRegistered, notRegistered, unsupportedScope };

struct RegistrationResult {
    RegistrationError error = RegistrationError::none;
    /// The faces that the call registered or unregistered.
    std::vector<std::string> postScriptNames;
    explicit operator bool() const { return error == RegistrationError::none; }
};

class FontCatalogue {
public:
    /// The family of the first file is the system's interface font; glyphs that a face lacks are taken from the
    /// files in their order. Files that are no fonts are left out.
    explicit FontCatalogue(std::span<const std::filesystem::path> systemFontFiles);
    ~FontCatalogue();
    FontCatalogue(const FontCatalogue&) = delete;
    FontCatalogue& operator=(const FontCatalogue&) = delete;

    /// The parts are the file's if the caller has it open: a file that has to be mapped takes longer.
    RegistrationResult registerFile(const std::filesystem::path& path);
    RegistrationResult registerFile(const std::filesystem::path& path, const FontParts& parts);
    RegistrationResult registerData(std::span<const std::byte> bytes);
    RegistrationResult unregisterFile(const std::filesystem::path& path);
    RegistrationResult unregisterFont(std::string_view postScriptName);

    /// Of the first face; nothing for bytes that are no font.
    static std::optional<FaceNames> namesOf(std::span<const std::byte> bytes);

    /// Sorted, system fonts included.
    std::vector<std::string> familyNames() const;
    std::vector<std::string> fontNamesForFamily(std::string_view family) const;

    /// Null for an unknown name.
    std::shared_ptr<const Font> find(std::string_view postScriptName) const;
    /// The nearest upright weight of the interface font; null only if no system font could be read.
    std::shared_ptr<const Font> systemFont(FontWeight weight = FontWeight::regular) const;

    /// What lays text out with these fonts; for this library's own use.
    Typesetter& typesetter() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// The fonts of the simulated system as installed under a fonts folder: interface font first, then the scripts.
std::vector<std::filesystem::path> installedSystemFonts(const std::filesystem::path& folder = "/usr/share/fonts");

}
