// Where everything lies in the strip, in points.
#pragma once

#include "Tweak/Placement.hpp"
#include "Tweak/Widgets/StripOptions.hpp"

namespace LYR {

/// The strip's frame, and the three slots in its coordinates.
struct StripGeometry {
    CGRect frame{};
    Slot weather;
    Slot agenda;
    Slot battery;
};

StripGeometry stripGeometry(CGSize screen, WeatherOption weather, BatteryOption battery);

/// Gives each view of a presentation its frame within the slot.
void placeWeather(WeatherOption option, const Slot& slot);
/// The icon stands in the middle of its slot, or beside what shares the line with it.
void placeAgenda(const Slot& slot);
void placeBattery(BatteryOption option, const Slot& slot);

}
