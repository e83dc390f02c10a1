// Where the controls lie on the panel, in points.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

namespace LYR {

/// Gives every control of a panel of that width its frame.
void placePanel(CGFloat width);

}
