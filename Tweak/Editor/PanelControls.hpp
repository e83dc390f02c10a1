// The controls on the panel: which of them belong together, and the values that they show.
#pragma once

#include "Tweak/Editor/EditState.hpp"

namespace LYR {

/// What of an element the panel edits at a time: the areas into which its controls are laid.
enum class Area { font, colour, position, dateOption, widgetOption };

/// The area of a segment of a tab's panel; the first for a segment that it lacks.
Area areaOf(Tab tab, long segment);
/// Shows the controls of that segment of the tab's panel and hides all others; hides all without a tab.
void showSubControls(std::optional<Tab> tab, long segment);
/// Sets sliders, stepper, segments, wheels and the current colour to what is stored.
void showStoredValues(Tab tab);

}
