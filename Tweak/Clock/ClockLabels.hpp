// The clock's labels: made once, styled and placed at every full refresh.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"

namespace LYR {

/// Makes the labels and the editor's outlines in the controller's view.
void createClockLabels(const SB::FLockScreenDateViewController& controller);

/// Frames of the three labels and scale of the controller's view, by the screen-width rule.
void placeClockLabels(const SB::FLockScreenDateViewController& controller);

/// Everything but the texts: fonts, transparency, frames, alignment, colours, shadow.
void styleClockLabels(const SB::FLockScreenDateViewController& controller);

/// The date's frame alone: out of sight above the screen while a timer runs.
void placeDateLabel();

/// Empties the timer label unless a timer runs, and places the date.
void settleTimerAndDate();

/// Hides or shows time and date as the settings say.
void applyClockVisibility();

}
