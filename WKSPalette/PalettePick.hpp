// Chooses a background and three text colours from the pixels of a picture, by how often each colour occurs.
#pragma once

#include "WKSPalette/WKSColor.hpp"

#include <span>

namespace LYR {

struct PickedColours {
    WKSColor background;
    WKSColor primary;
    WKSColor secondary;
    WKSColor detail;

    constexpr bool operator==(const PickedColours&) const = default;
};

/// The background is the most frequent colour that is not black or white, else the most frequent one. The text
/// colours are the most frequent of the opposite darkness that contrast with the background and are distinct from
/// one another; where there is none left, white stands on a dark background and black on a light one. Of colours
/// that are equally frequent the one wins that more pixels are like, in red, green and blue of four bits each, and
/// then the one with the smaller packed value. No pixels at all count as black.
PickedColours pickPalette(std::span<const WKSColor> pixels);

}
