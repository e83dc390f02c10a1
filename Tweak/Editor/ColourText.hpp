// Colours as the colour file and the settings pages hold them.
#pragma once

#include "Platform/UIKit/UIColor.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace LYR {

/// "#FF0000" and what is said of the opacity: each component times 255, cut to a whole number. Black for no colour.
NS::String colourText(const UI::Color& colour, const NS::String& opacity);

}
