// Colours of the drawing library: an object with the components in the colour's own space.
#pragma once

#include "Platform/CoreGraphics/CGColor.hpp"
#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <array>
#include <optional>

namespace Simulator {

/// Two components (grey, alpha) or four (red, green, blue, alpha).
struct ColorComponents {
    std::array<double, 4> values{};
    std::size_t count = 4;

    static ColorComponents grey(double white, double alpha) { return {{white, alpha}, 2}; }
    static ColorComponents rgb(double red, double green, double blue, double alpha)
    {
        return {{red, green, blue, alpha}, 4};
    }
    double alpha() const { return values[count - 1]; }
    ColorComponents withAlpha(double alpha) const;
    Graphics::Color color() const;
    bool operator==(const ColorComponents&) const = default;
};

struct CGColorObject : StandIn {
    using Root = CGColorObject;
    ColorComponents components;
};

/// A new colour object.
ObjC::Object makeCGColor(const ColorComponents& components);
/// The components of a colour object; null for anything else.
const ColorComponents* componentsOf(CGColorRef color);
std::optional<Graphics::Color> resolvedColor(CGColorRef color);

}
