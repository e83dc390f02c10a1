// Colours as texts. Read are "#RRGGBB" and "#RGB", either with ":opacity"; written is "#RRGGBBAA".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// Components from 0 to 1.
struct ColourComponents {
    double red = 1;
    double green = 1;
    double blue = 1;
    double opacity = 1;
    bool operator==(const ColourComponents&) const = default;
};

/// Nothing for a text that is no colour. The "#" may be missing; an opacity beyond 0 and 1 is held there.
std::optional<ColourComponents> colourOfText(std::string_view text);
/// "#RRGGBBAA"; what is beyond 0 and 1 is held there.
std::string textOfColour(const ColourComponents& colour);

}
