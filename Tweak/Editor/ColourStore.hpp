// Where the colours that the user picks are kept.
#pragma once

#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// Stores a colour's text as that of the element, also as what its settings page falls back to, and says so.
/// A file that does not exist stays so.
void storeColour(Tab tab, const NS::String& text);

}
