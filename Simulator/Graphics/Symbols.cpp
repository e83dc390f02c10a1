// Reads symbols from their folder on first use.
#include "Simulator/Graphics/Symbols.hpp"

#include "Simulator/Graphics/FontFile.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

constexpr double drawnPointSize = 17;
constexpr double largestPointSize = 1'000;
constexpr std::size_t fileLimit = 1u << 20;
constexpr std::size_t rememberedLimit = 512;

/// Names have no folders in them.
bool isName(std::string_view name)
{
    return !name.empty() && name.front() != '.' && name.find('/') == name.npos && name.find('\0') == name.npos;
}

}

SymbolSet::SymbolSet(std::filesystem::path folder)
    : m_folder(std::move(folder))
{
}

Image::Pointer SymbolSet::drawn(std::string_view name) const
{
    if (!isName(name))
        return nullptr;
    auto found = m_drawn.find(name);
    if (found == m_drawn.end()) {
        const auto path = m_folder / (std::string(name) + ".svg");
        found = m_drawn.emplace(name, Image::fromSvg(readFile(path, fileLimit))).first;
    }
    return found->second;
}

Image::Pointer SymbolSet::symbol(std::string_view name, double pointSize) const
{
    const Image::Pointer original = drawn(name);
    if (!original || !std::isfinite(pointSize) || pointSize <= 0)
        return original;
    if (m_sized.size() > rememberedLimit)
        m_sized.clear();
    auto& sized = m_sized[{std::string(name), pointSize}];
    if (!sized) {
        const double scale = std::min(pointSize, largestPointSize) / drawnPointSize;
        sized = original->resized({original->size().width * scale, original->size().height * scale});
    }
    return sized;
}

bool SymbolSet::contains(std::string_view name) const
{
    std::error_code error;
    return isName(name) && std::filesystem::is_regular_file(m_folder / (std::string(name) + ".svg"), error);
}

std::vector<std::string> SymbolSet::names() const
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(m_folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().extension() == ".svg")
            names.push_back(entry->path().stem());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}
