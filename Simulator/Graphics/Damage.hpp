// What of the screen differs between two display lists.
#pragma once

#include "Simulator/Graphics/DisplayItem.hpp"

#include <vector>

namespace Simulator::Graphics {

/// Disjoint rectangles within the screen.
std::vector<PixelRect> damageBetween(const DisplayList& before, const DisplayList& after, const PixelRect& screen);

}
