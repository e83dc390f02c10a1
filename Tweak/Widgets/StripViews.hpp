// The views of the strip, and which of them a presentation shows.
#pragma once

#include "Platform/UIKit/UIView.hpp"
#include "Tweak/Widgets/StripOptions.hpp"

#include <optional>

namespace LYR {

/// Builds `_widgetView` with everything in it.
void buildStripViews();
void showWeatherViews(WeatherOption option);
/// The battery's views, and those of the middle slot, which gives way where weather and battery take two cells each.
void showBatteryViews(BatteryOption option, std::optional<WeatherOption> weather);
/// Colour and shadow of every text, colour of the icons outside the battery.
void colourStripViews();

}
