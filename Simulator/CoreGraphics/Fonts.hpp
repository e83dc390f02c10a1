// What the phone draws with: the catalogue of fonts and the set of symbols.
#pragma once

#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Graphics/Symbols.hpp"

#include <filesystem>
#include <span>

namespace Simulator {

/// The phone's fonts. Without a set-up they are those installed on this machine.
Graphics::FontCatalogue& fontCatalogue();
/// Starts over with these system fonts; fonts registered before are gone.
void setUpFonts(std::span<const std::filesystem::path> systemFontFiles);

/// The system's symbols; empty until a folder is set.
const Graphics::SymbolSet& symbolSet();
void setUpSymbols(const std::filesystem::path& folder);

}
