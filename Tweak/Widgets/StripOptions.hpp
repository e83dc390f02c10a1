// What the user chooses for each slot of the strip. A number that names none leaves the slot as it is.
#pragma once

namespace LYR {

/// `highLowOption`: weather in one cell or in two.
enum class WeatherOption { oneCell = 0, twoCells = 1 };
/// `sunOption`
enum class AgendaOption { sunrise = 1, sunset = 2, alarm = 3, event = 4 };
/// `battOption`: a glyph with its percentage, a glyph under a phone, or a bar in two cells.
enum class BatteryOption { percentage = 1, phone = 2, bar = 3 };

}
