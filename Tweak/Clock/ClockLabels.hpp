// The clock's labels: made once, styled and placed at every full refresh.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"

namespace LYR {

/// Makes the labels and the editor's outlines in the controller's view.
void createClockLabels(const SB::FLockScreenDateViewController& controller);

/// Whether the labels are in that stock date view, which makes it the lock screen's.
bool holdsClock(const SB::FLockScreenDateView& view);
/// Takes the time that the date view draws itself off the screen, or puts it back.
void setStockTimeHidden(const SB::FLockScreenDateView& view, bool hidden);

/// Takes our clock off the screen and puts the stock one back.
void giveBackStockClock();

/// Frames of the three labels and scale of the controller's view, by the screen-width rule.
void placeClockLabels(const SB::FLockScreenDateViewController& controller);

/// Everything but the texts: fonts, transparency, frames, alignment, colours, shadow.
void styleClockLabels(const SB::FLockScreenDateViewController& controller);

/// How much of time, date and timer shows through: what the user set, as far as the shell shows its own clock.
void fadeClockLabels();

/// The date's frame alone: out of sight above the screen while a timer runs.
void placeDateLabel();

/// Empties the timer label unless a timer runs, and places the date.
void settleTimerAndDate();

/// Hides or shows time and date as the settings say.
void applyClockVisibility();

}
