// The phone's catalogue of fonts and its set of symbols, made when first needed.
#include "Simulator/CoreGraphics/Fonts.hpp"

#include "Simulator/Base/Phone.hpp"

#include <memory>

namespace Simulator {

namespace {

struct DrawingMeans {
    std::unique_ptr<Graphics::FontCatalogue> fonts;
    std::unique_ptr<Graphics::SymbolSet> symbols;
};

DrawingMeans& means()
{
    return Phone::part<DrawingMeans>();
}

}

Graphics::FontCatalogue& fontCatalogue()
{
    if (!means().fonts)
        setUpFonts(Graphics::installedSystemFonts());
    return *means().fonts;
}

void setUpFonts(std::span<const std::filesystem::path> systemFontFiles)
{
    means().fonts = std::make_unique<Graphics::FontCatalogue>(systemFontFiles);
}

const Graphics::SymbolSet& symbolSet()
{
    if (!means().symbols)
        setUpSymbols({});
    return *means().symbols;
}

void setUpSymbols(const std::filesystem::path& folder)
{
    means().symbols = std::make_unique<Graphics::SymbolSet>(folder);
}

}
