#include "Tweak/Editor/ColourText.hpp"

#include <algorithm>

namespace LYR {

NS::String colourText(const UI::Color& colour, const NS::String& opacity)
{
    constexpr char hexadecimal[] = "0123456789ABCDEF";
    CGFloat components[4] = {};
    colour.getRed(&components[0], &components[1], &components[2], &components[3]);
    char text[7] = {'#'};
    for (int i = 0; i < 3; ++i) {
        auto byte = static_cast<unsigned>(std::clamp<CGFloat>(components[i], 0, 1) * 255);
        text[1 + 2 * i] = hexadecimal[byte >> 4];
        text[2 + 2 * i] = hexadecimal[byte & 15];
    }
    return NS::String::fromUTF8({text, sizeof text}).stringByAppendingString(opacity);
}

}
