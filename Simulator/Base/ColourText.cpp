// Reads and writes the digits of colours.
#include "Simulator/Base/ColourText.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace Simulator {

namespace {

std::optional<double> componentOf(std::string_view digits)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, 16);
    if (error != std::errc() || end != digits.end())
        return std::nullopt;
    return digits.size() == 1 ? value / 15.0 : value / 255.0;
}

/// Decimal digits with at most one point and a sign: "1", "1.0", ".5", "-0.2".
std::optional<double> opacityOf(std::string_view text)
{
    if (text.find_first_not_of("0123456789.-") != std::string_view::npos)
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value, std::chars_format::fixed);
    if (error != std::errc() || end != text.end())
        return std::nullopt;
    return std::clamp(value, 0.0, 1.0);
}

}

std::optional<ColourComponents> colourOfText(std::string_view text)
{
    if (text.starts_with('#'))
        text.remove_prefix(1);
    const std::size_t colon = text.find(':');
    const std::string_view digits = text.substr(0, colon);
    if (digits.size() != 3 && digits.size() != 6)
        return std::nullopt;
    const std::size_t width = digits.size() / 3;
    const auto red = componentOf(digits.substr(0, width));
    const auto green = componentOf(digits.substr(width, width));
    const auto blue = componentOf(digits.substr(2 * width));
    const auto opacity = colon == std::string_view::npos ? 1.0 : opacityOf(text.substr(colon + 1));
    if (!red || !green || !blue || !opacity)
        return std::nullopt;
    return ColourComponents{*red, *green, *blue, *opacity};
}

std::string textOfColour(const ColourComponents& colour)
{
    const auto byte = [](double component) { return std::lround(std::clamp(component, 0.0, 1.0) * 255); };
    char text[16];
    std::snprintf(text, sizeof text, "#%02lX%02lX%02lX%02lX", byte(colour.red), byte(colour.green), byte(colour.blue),
        byte(colour.opacity));
    return text;
}

}
