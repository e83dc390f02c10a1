// Font files for tests: installed ones, and ones altered in memory.
#pragma once

#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"

#include <cstddef>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace Simulator::Graphics::Samples {

using Bytes = std::vector<std::byte>;

extern const std::filesystem::path latoBlack;
extern const std::filesystem::path latoHairline;
extern const std::filesystem::path quicksand;

/// A catalogue of the installed system fonts, made once.
FontCatalogue& systemCatalogue();

Bytes read(const std::filesystem::path& path);
/// Replaces a name by one of the same length wherever the font has it.
Bytes renamed(Bytes font, std::string_view from, std::string_view to);
/// As written before the tables told the height of capitals.
Bytes withoutCapitalHeight(Bytes font);
Bytes collection(std::span<const Bytes> fonts);

/// A folder of its own that goes with the object.
class TemporaryFolder : public Simulator::TemporaryFolder {
public:
    std::filesystem::path write(std::string_view name, std::span<const std::byte> bytes) const;
};

}
