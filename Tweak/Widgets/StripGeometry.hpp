// Where everything lies in the strip, in points.
#pragma once

#include "Tweak/Placement.hpp"

namespace LYR {

/// The strip's frame, and the three slots in its coordinates.
struct StripGeometry {
    CGRect frame{};
    Slot weather;
    Slot agenda;
    Slot battery;
};

/// `weatherCells` and `batteryCells` are how much of the strip those two take, from 1 to 2.
StripGeometry stripGeometry(CGSize screen, int weatherCells, int batteryCells);

}
