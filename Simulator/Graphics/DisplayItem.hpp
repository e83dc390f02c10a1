// The flattened layer tree: what is drawn, in order, with its place in pixels and a digest of its looks.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Layer.hpp"
#include "Simulator/Graphics/TextLayout.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace Simulator::Graphics {

struct DisplayItem;

struct RoundedRect {
    Rect rect;
    double radius = 0;
};

/// A ring of the given width inside the shape if that is not 0.
struct Fill {
    RoundedRect shape;
    double ringWidth = 0;
    Color color;
};

struct Glyphs {
    std::shared_ptr<const TextLayout> layout;
};

struct Picture {
    Image::Pointer image;
    Rect rect;
    std::optional<Color> tint;
    /// Where the whole picture lies if it stands upright.
    PixelRect place;
};

struct GradientFill {
    RoundedRect shape;
    /// What the gradient's points are relative to.
    Rect area;
    Gradient gradient;
};

struct Backdrop {
    RoundedRect shape;
    Color tint;
    double sigma = 0;
    /// What of the screen has an influence on it.
    PixelRect input;
};

struct CastShadow {
    Color color;
    double sigma = 0;
    int dx = 0;
    int dy = 0;
};

/// Items that are faded, cut to a shape or cast a shadow as one; each is a group of its own.
struct Group {
    std::vector<DisplayItem> items;
    std::optional<RoundedRect> mask;
    std::optional<CastShadow> shadow;
    /// Of the items, without the shadow and unclipped by what is around.
    PixelRect contentBounds;
    std::uint64_t contentHash = 0;
    /// Of everything but the items.
    std::uint64_t ownHash = 0;
};

struct DisplayItem {
    using Content = std::variant<Fill, Glyphs, Picture, GradientFill, Backdrop, Group>;

    /// To pixels.
    AffineTransform transform;
    /// The pixels that it may touch.
    PixelRect bounds;
    /// It would touch more if it were not clipped.
    bool isClipped = false;
    double opacity = 1;
    /// Two items of the same digest look the same.
    std::uint64_t hash = 0;
    /// Names the bitmap that it is drawn from; 0 if it is drawn directly.
    std::uint64_t bitmapKey = 0;
    Content content;
};

using DisplayList = std::vector<DisplayItem>;

}
