// A phone's root folder with many fonts of the user, and the bare reading of their names.
#pragma once

#include "Simulator/Control/RootFolder.hpp"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace Benchmarks {

/// A temporary root folder with so many fonts, each with names of its own.
class FontFolder {
public:
    explicit FontFolder(int count);
    const std::string& root() const { return m_root.path(); }

private:
    Simulator::Control::RootFolder m_root;
};

/// The user's fonts in a root folder.
std::vector<std::filesystem::path> userFonts(const std::filesystem::path& root);

/// Family and PostScript name of every font by FreeType alone; answers the number of names.
std::size_t readNames(const std::vector<std::filesystem::path>& fonts);

}
