// The clock's 12/24-hour switch of the phone's settings, and what it does to patterns.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// Whether the locale's own clock counts to 24.
bool countsTo24(std::string_view locale);

/// The pattern with its hours counted to 24, without a half of the day; or to 12, with one at the end of the time. A
/// pattern without hours stays as it is. The platform does so to every formatter that has no locale of its own while
/// the user has set the switch against the language's habit (its technical Q&A on date formatters and fixed formats).
std::u16string withHourCycle(std::u16string_view pattern, bool countsTo24);

}
