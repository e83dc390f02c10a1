// The battery: a glyph or a bar that follows the charge in steps.
#pragma once

namespace LYR {

/// Reads the device's battery, and gives the slot's views their pictures, texts and colours.
void refreshBatterySlot();
/// Makes the bar's filled part as long as the charge.
void placeBatteryIndicator();

}
