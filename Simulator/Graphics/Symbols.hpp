// The system's symbols by their platform names, from a folder of drawings.
#pragma once

#include "Simulator/Graphics/Image.hpp"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator::Graphics {

class SymbolSet {
public:
    explicit SymbolSet(std::filesystem::path folder);

    /// A drawing whose size is in points, to be used as a template. Null for a name without a drawing. The files are
    /// drawn for a font size of 17 points; an odd size counts as that.
    Image::Pointer symbol(std::string_view name, double pointSize = 17) const;
    bool contains(std::string_view name) const;
    std::vector<std::string> names() const;

private:
    Image::Pointer drawn(std::string_view name) const;

    std::filesystem::path m_folder;
    mutable std::map<std::string, Image::Pointer, std::less<>> m_drawn;
    mutable std::map<std::pair<std::string, double>, Image::Pointer> m_sized;
};

}
