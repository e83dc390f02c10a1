// The fonts are copies of one that differ in their names only: all of the same length, so that nothing else moves.
#include "Benchmarks/FontFolder.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace Benchmarks {

namespace {

constexpr const char* model = "/usr/share/fonts/truetype/quicksand/Quicksand-Medium.ttf";
constexpr std::string_view modelName = "Quicksand";

std::string readModel()
{
    std::ifstream file(model, std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    if (bytes.empty()) {
        std::fprintf(stderr, "%s is missing; install fonts-quicksand\n", model);
        std::exit(1);
    }
    return bytes;
}

/// As names are stored: two bytes a character, the higher one first.
std::string wide(std::string_view text)
{
    std::string bytes;
    for (char character : text) {
        bytes += '\0';
        bytes += character;
    }
    return bytes;
}

std::filesystem::path folderIn(const std::filesystem::path& root)
{
    return root / Simulator::Control::userFontFolder.substr(1);
}

void rename(std::string& font, const std::string& from, const std::string& to)
{
    for (std::size_t at = font.find(from); at != std::string::npos; at = font.find(from, at + to.size()))
        font.replace(at, from.size(), to);
}

std::string numberedName(int number)
{
    std::string digits = std::to_string(number);
    return "Quick" + std::string(4 - digits.size(), '0') + digits;
}

}

FontFolder::FontFolder(int count)
{
    const std::string font = readModel();
    std::filesystem::create_directories(folderIn(root()));
    for (int number = 0; number < count; ++number) {
        std::string name = numberedName(number);
        std::string renamed = font;
        rename(renamed, wide(modelName), wide(name));
        std::ofstream(folderIn(root()) / (name + ".ttf"), std::ios::binary) << renamed;
    }
}

std::vector<std::filesystem::path> userFonts(const std::filesystem::path& root)
{
    std::vector<std::filesystem::path> fonts;
    for (const auto& entry : std::filesystem::directory_iterator(folderIn(root)))
        fonts.push_back(entry.path());
    return fonts;
}

std::size_t readNames(const std::vector<std::filesystem::path>& fonts)
{
    FT_Library library = nullptr;
    FT_Init_FreeType(&library);
    std::size_t names = 0;
    for (const auto& font : fonts) {
        FT_Face face = nullptr;
        if (FT_New_Face(library, font.c_str(), 0, &face) != 0)
            continue;
        names += face->family_name != nullptr;
        names += FT_Get_Postscript_Name(face) != nullptr;
        FT_Done_Face(face);
    }
    FT_Done_FreeType(library);
    return names;
}

}
