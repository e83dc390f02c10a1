// The tree that a screen is composed of, as plain values: geometry, decoration, content and children, back to front.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Graphics/Text.hpp"

#include <optional>
#include <variant>
#include <vector>

namespace Simulator::Graphics {

enum class ContentMode { scaleToFill, aspectFit, aspectFill, center };

struct ImageContent {
    Image::Pointer image;
    ContentMode mode = ContentMode::scaleToFill;
    /// Image pixels per point; matters to the modes that keep the image's own size.
    double scale = 1;
    /// Set for a template: only the image's shape counts, filled with this colour.
    std::optional<Color> tint;
};

struct Gradient {
    std::vector<Color> colors;
    /// One for each colour, rising from 0 to 1; evenly spread if their number differs.
    std::vector<double> locations;
    /// In units of the bounds.
    Point start = {0.5, 0};
    Point end = {0.5, 1};
};

/// Shows what is behind the layer, blurred and tinted; follows the corner radius.
struct BackdropBlur {
    double radius = 20;
    Color tint = {1, 1, 1, 0.3};
};

/// Cast by whatever the layer and its children draw: for a label by its glyphs. A layer that clips casts none.
struct Shadow {
    double opacity = 0;
    Color color;
    /// Standard deviation of the blur, in points.
    double radius = 3;
    Size offset = {0, -3};
};

using LayerContent = std::variant<std::monostate, Text, ImageContent, Gradient, BackdropBlur>;

/// Painted in this order: shadow, background, content, children, border. The children live in the coordinates of the
/// bounds. Hidden layers are simply not in the tree.
struct Layer {
    /// Where the centre of the bounds lies in the parent; the transform applies about it.
    Point position;
    Rect bounds;
    AffineTransform transform;
    /// Of the layer and its children as one.
    double opacity = 1;
    bool clipsToBounds = false;
    std::optional<Color> backgroundColor;
    double cornerRadius = 0;
    double borderWidth = 0;
    Color borderColor;
    Shadow shadow;
    LayerContent content;
    std::vector<Layer> children;

    static Layer withFrame(const Rect& frame);
    void setFrame(const Rect& frame);
    AffineTransform toParent() const;
};

}
