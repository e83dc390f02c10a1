// Which installed font files stand for the phone's own fonts.
#include "Simulator/Graphics/FontCatalogue.hpp"

namespace Simulator::Graphics {

namespace {

/// The interface font first, then one family for each script, in the order in which they are asked for a glyph.
constexpr const char* files[] = {
    "opentype/inter/Inter-Regular.otf",
    "opentype/inter/Inter-ExtraLight.otf",
    "opentype/inter/Inter-Thin.otf",
    "opentype/inter/Inter-Light.otf",
    "opentype/inter/Inter-Medium.otf",
    "opentype/inter/Inter-SemiBold.otf",
    "opentype/inter/Inter-Bold.otf",
    "opentype/inter/Inter-ExtraBold.otf",
    "opentype/inter/Inter-Black.otf",
    "opentype/inter/Inter-Italic.otf",
    "truetype/noto/NotoSansHebrew-Regular.ttf",
    "truetype/noto/NotoSansHebrew-Bold.ttf",
    "truetype/noto/NotoSansArabic-Regular.ttf",
    "truetype/noto/NotoSansArabic-Bold.ttf",
    "truetype/noto/NotoSansThai-Regular.ttf",
    "truetype/noto/NotoSansThai-Bold.ttf",
    "truetype/noto/NotoSansDevanagari-Regular.ttf",
    "truetype/noto/NotoSansDevanagari-Bold.ttf",
    "truetype/droid/DroidSansFallbackFull.ttf",
    "truetype/noto/NotoSans-Regular.ttf",
    "truetype/noto/NotoSansBengali-Regular.ttf",
    "truetype/noto/NotoSansTamil-Regular.ttf",
    "truetype/noto/NotoSansArmenian-Regular.ttf",
    "truetype/noto/NotoSansGeorgian-Regular.ttf",
    "truetype/noto/NotoSansKhmer-Regular.ttf",
    "truetype/noto/NotoSansLao-Regular.ttf",
    "truetype/noto/NotoSansMyanmar-Regular.ttf",
    "truetype/noto/NotoSansSymbols-Regular.ttf",
    "truetype/noto/NotoSansSymbols2-Regular.ttf",
    "truetype/noto/NotoSansMath-Regular.ttf",
};

}

std::vector<std::filesystem::path> installedSystemFonts(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const char* file : files) {
        std::error_code error;
        if (auto path = folder / file; std::filesystem::is_regular_file(path, error))
            paths.push_back(std::move(path));
    }
    return paths;
}

}
