// The strip of three widgets under the clock: weather; sun, alarm or event; battery.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Tweak/Widgets/Items.hpp"

namespace LYR {

/// Puts the strip onto the cover sheet. It is built at the first call and lives as long as the process.
void createStrip(const CS::CoverSheetViewController& controller);
/// Shows the views of the chosen presentations, and places the strip and what lies in it. Fills a slot that comes back.
void placeStrip(Items& items);
/// Lets the strip be seen or not, without a change to what is on it.
void showStrip(bool shown);
/// Fades and slides the strip as the stock clock is.
void moveStrip();
/// Visibility, scale, colours, contents and places. What is hidden is not filled, but for the battery.
void refreshStrip(Items& items);

}
