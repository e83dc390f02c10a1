// Where the controls lie on the panel, in points.
#pragma once

#include "Tweak/Placement.hpp"

namespace LYR {

/// Gives every control of the panel its frame, within the part of the panel's width that the screen shows.
void placePanel(const Slot& shown);

}
