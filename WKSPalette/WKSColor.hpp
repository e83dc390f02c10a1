// A colour of four 8-bit channels that can be packed, counted and compared. The value here; the class of the same
// name, for callers by message, is a thin cover over it.
#pragma once

#include "Platform/UIKit/UIColor.hpp"

#include <cstdint>

namespace LYR {

struct WKSColor {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    std::uint8_t a = 0;

    /// From the low 32 bits, 0xAARRGGBB.
    static constexpr WKSColor fromLong(long value)
    {
        WKSColor color;
        color.setLong(value);
        return color;
    }
    constexpr void setLong(long value)
    {
        b = static_cast<std::uint8_t>(value);
        g = static_cast<std::uint8_t>(value >> 8);
        r = static_cast<std::uint8_t>(value >> 16);
        a = static_cast<std::uint8_t>(value >> 24);
    }
    constexpr std::uint32_t packed() const
    {
        return std::uint32_t{a} << 24 | std::uint32_t{r} << 16 | std::uint32_t{g} << 8 | std::uint32_t{b};
    }
    /// The packed form as a signed number of 32 bits: negative for an alpha of 128 or more.
    constexpr long toLong() const { return static_cast<std::int32_t>(packed()); }

    /// No colour, or one without red, green and blue, gives the transparent black.
    static WKSColor fromUIColor(const UI::Color& color);
    UI::Color uicolor() const { return uicolorWithAlpha(a / 255.0); }
    UI::Color uicolorWithAlpha(double alpha) const;

    /// Luminance from 12.75 (black) to 267.75 (white): never zero, so that any two can be divided.
    constexpr double lum() const { return 0.2126 * r + 0.7152 * g + 0.0722 * b + 12.75; }
    constexpr bool isDark() const { return lum() < 114.75; }
    constexpr bool isBlackOrWhite() const { return (r > 232 && g > 232 && b > 232) || (r < 23 && g < 23 && b < 23); }
    /// Far apart in some channel, and not both grey.
    constexpr bool isDistinct(WKSColor other) const
    {
        if (distance(r, other.r) < 64 && distance(g, other.g) < 64 && distance(b, other.b) < 64)
            return false;
        return !(isGrey() && other.isGrey());
    }
    constexpr bool isContrasting(WKSColor other) const
    {
        double mine = lum();
        double theirs = other.lum();
        return (mine > theirs ? mine / theirs : theirs / mine) > 1.6;
    }
    /// The colour with at least that saturation.
    WKSColor saturate(double saturation) const;

    constexpr bool operator==(const WKSColor&) const = default;

private:
    static constexpr int distance(int left, int right) { return left > right ? left - right : right - left; }
    constexpr bool isGrey() const { return distance(r, g) < 7 && distance(r, b) < 7; }
};

/// A bitmap of red, green, blue and alpha bytes is a row of colours.
static_assert(sizeof(WKSColor) == 4);

/// The colour with its saturation raised to the minimum; the same object if it is saturated enough already, is nil or
/// has no saturation.
UI::Color raisingSaturation(const UI::Color& color, double minimum);

/// Makes the class `WKSColor` known to the runtime.
void registerWKSColor();

}
