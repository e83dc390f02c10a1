// How the shell fades and slides its own clock, which ours, the strip and the buttons on the lock screen go along with.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

namespace LYR {

struct StockMotion {
    /// Of the stock time and of the stock date, 0 to 1.
    CGFloat timeAlpha = 1;
    CGFloat dateAlpha = 1;
    /// How far what slides is from its place, in points.
    CGPoint slide{};

    /// A scale about the middle, and the slide.
    CGAffineTransform transform(CGFloat scale = 1) const { return {scale, 0, 0, scale, slide.x, slide.y}; }
};

/// As the shell left it last. Main thread only; nothing for whoever inspects the library.
[[gnu::visibility("hidden")]] extern constinit StockMotion stockMotion;

}
