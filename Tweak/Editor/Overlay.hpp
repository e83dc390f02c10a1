// The panel and the row of buttons above it: on the screen, off it, and on the way.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

namespace LYR {

/// Half a second, starting slowly.
void animateOverlay(void (*changes)(), void (*completion)(bool finished) = nullptr);

/// Puts the panel and its buttons onto the cover sheet.
void addOverlay();
/// Shows them at their open places.
void showOverlay();
/// Sends them off the bottom of the screen.
void parkOverlay();
/// How much of the panel lies beyond either side of the screen: it is wider than a tablet that is held upright.
CGFloat panelOutsideScreen();
// The button of the widgets goes its own way.
void hideOverlay();
void removeOverlay();
void removeWidgetButton();

}
