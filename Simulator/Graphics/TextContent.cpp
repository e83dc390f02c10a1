// Decodes, mends and cuts the characters of a label.
#include "Simulator/Graphics/TextContent.hpp"

#include <glib.h>

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t attachmentCharacter = 0xFFFC;
constexpr char32_t ellipsis = 0x2026;
/// No label reads further than this, whatever it shows.
constexpr std::size_t decodedLimit = 200'000;
constexpr double lineLimit = 4'096;
constexpr double blockLimit = 8'192;

struct Character {
    char32_t code = 0;
    const TextRun* run = nullptr;
};

using Characters = std::vector<Character>;

void decode(const TextRun& run, Characters& out)
{
    const char* position = run.string.data();
    const char* const end = position + run.string.size();
    while (position < end && out.size() < decodedLimit) {
        if (*position == '\0') {
            ++position;
            continue;
        }
        const gunichar code = g_utf8_get_char_validated(position, end - position);
        const bool isValid = code < 0x110000;
        out.push_back({isValid ? code : replacement, &run});
        position = isValid ? g_utf8_next_char(position) : position + 1;
    }
}

bool endsParagraph(char32_t code)
{
    return code == '\n' || code == '\r' || code == 0x2028 || code == 0x2029;
}

bool truncates(LineBreakMode mode)
{
    return mode >= LineBreakMode::truncateHead;
}

/// A label of one line shows the first paragraph only.
void keepFirstParagraph(Characters& characters, LineBreakMode mode)
{
    const auto end = std::find_if(
        characters.begin(), characters.end(), [](const Character& character) { return endsParagraph(character.code); });
    if (end == characters.end())
        return;
    const TextRun* run = end->run;
    characters.erase(end, characters.end());
    if (truncates(mode))
        characters.push_back({ellipsis, run});
}

/// Generous: a fifth of the font size a character, four fifths of it a line.
std::size_t visibleLimit(const Text& text, Size bounds)
{
    double smallest = 1000;
    for (const auto& run : text.runs)
        smallest = std::min(smallest, usableFontSize(run.size));
    const double perLine = bounds.width > 0 ? bounds.width / (smallest * 0.2) : lineLimit;
    if (text.numberOfLines == 1)
        return static_cast<std::size_t>(std::clamp(perLine, 512.0, lineLimit));
    double lines = bounds.height > 0 ? bounds.height / (smallest * 0.8) + 1 : blockLimit;
    if (text.numberOfLines > 1)
        lines = std::min<double>(lines, text.numberOfLines);
    return static_cast<std::size_t>(std::clamp(perLine * lines, 512.0, blockLimit));
}

void cut(Characters& characters, std::size_t limit, LineBreakMode mode)
{
    if (characters.size() <= limit)
        return;
    const auto excess = static_cast<std::ptrdiff_t>(characters.size() - limit);
    std::ptrdiff_t from = static_cast<std::ptrdiff_t>(limit);
    if (mode == LineBreakMode::truncateHead)
        from = 0;
    else if (mode == LineBreakMode::truncateMiddle)
        from = static_cast<std::ptrdiff_t>(limit / 2);
    characters.erase(characters.begin() + from, characters.begin() + from + excess);
}

void append(TextContent& content, const Character& character)
{
    if (content.ranges.empty() || content.ranges.back().run != character.run) {
        const int start = static_cast<int>(content.string.size());
        content.ranges.push_back({start, start, character.run, {}});
    }
    char bytes[6];
    const int length = g_unichar_to_utf8(character.code, bytes);
    content.string.append(bytes, static_cast<std::size_t>(length));
    content.ranges.back().end = static_cast<int>(content.string.size());
    content.ranges.back().characters += character.code;
}

}

double usableFontSize(double size)
{
    return std::isfinite(size) ? std::clamp(size, 0.5, 1000.0) : 17;
}

const TextContent::Range* TextContent::at(int byteOffset) const
{
    const auto found = std::upper_bound(
        ranges.begin(), ranges.end(), byteOffset, [](int offset, const Range& range) { return offset < range.end; });
    return found == ranges.end() ? nullptr : &*found;
}

TextContent contentOf(const Text& text, Size bounds)
{
    Characters characters;
    for (const auto& run : text.runs) {
        if (run.attachment)
            characters.push_back({attachmentCharacter, &run});
        else
            decode(run, characters);
    }
    if (text.numberOfLines == 1)
        keepFirstParagraph(characters, text.lineBreakMode);
    cut(characters, visibleLimit(text, bounds), text.lineBreakMode);
    TextContent content;
    for (const auto& character : characters)
        append(content, character);
    return content;
}

}
