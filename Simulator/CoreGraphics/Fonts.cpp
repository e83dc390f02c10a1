// The process's catalogue of fonts and its set of symbols, made when first needed.
#include "Simulator/CoreGraphics/Fonts.hpp"

#include <memory>

namespace Simulator {

static std::unique_ptr<Graphics::FontCatalogue>& catalogueStorage()
{
    static std::unique_ptr<Graphics::FontCatalogue> catalogue;
    return catalogue;
}

static std::unique_ptr<Graphics::SymbolSet>& symbolStorage()
{
    static std::unique_ptr<Graphics::SymbolSet> symbols;
    return symbols;
}

Graphics::FontCatalogue& fontCatalogue()
{
    if (!catalogueStorage())
        setUpFonts(Graphics::installedSystemFonts());
    return *catalogueStorage();
}

void setUpFonts(std::span<const std::filesystem::path> systemFontFiles)
{
    catalogueStorage() = std::make_unique<Graphics::FontCatalogue>(systemFontFiles);
}

const Graphics::SymbolSet& symbolSet()
{
    if (!symbolStorage())
        setUpSymbols({});
    return *symbolStorage();
}

void setUpSymbols(const std::filesystem::path& folder)
{
    symbolStorage() = std::make_unique<Graphics::SymbolSet>(folder);
}

}
