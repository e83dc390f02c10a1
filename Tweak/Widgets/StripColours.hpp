// The colours of the strip, from the colour file as it was read last.
#pragma once

#include "Tweak/Settings.hpp"

namespace LYR {

/// Of every icon.
inline UI::Color stripIconColour()
{
    return storedColour(Product::widgetColourKey);
}

/// Of every text.
inline UI::Color stripTextColour()
{
    return storedColour(Product::widgetTextColourKey);
}

}
