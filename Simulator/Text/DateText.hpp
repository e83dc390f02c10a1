// Dates as text in any of the phone's calendars, by ICU, with ICU's formatters kept for reuse.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

/// What a formatter is made of. Identifiers are the phone's: "en_US", "islamic-civil", "Asia/Jerusalem".
/// An empty calendar means the locale's own; an empty zone is UTC.
struct DateStyle {
    std::u16string_view pattern;
    std::string_view locale;
    std::string_view calendar;
    std::string_view timeZone;
};

/// `seconds` since 2001-01-01 UTC. The pattern is taken as it stands. An empty pattern, a pattern with an
/// unknown letter and a date that is no number all give an empty text.
std::u16string formatDate(double seconds, const DateStyle&);

/// The date that the whole text stands for; nothing if it does not fit the pattern.
std::optional<double> parseDate(std::u16string_view text, const DateStyle&);

/// The pattern of a date and a time style (0 none, 1 short … 4 full) in a locale.
std::u16string patternForStyles(int dateStyle, int timeStyle, std::string_view locale, std::string_view calendar);

/// The locale's own pattern for a skeleton such as "jm" or "MMMMd".
std::u16string patternForSkeleton(std::u16string_view skeleton, std::string_view locale);

enum class DateSymbols { months, weekdays, halvesOfDay, eras };
enum class SymbolWidth { wide, abbreviated, narrow };

/// The names a calendar gives its months, weekdays (Sunday first), halves of the day or eras.
std::vector<std::u16string> dateSymbols(
    DateSymbols, SymbolWidth, bool standalone, std::string_view locale, std::string_view calendar);

std::size_t cachedDateFormatters();
void forgetDateFormatters();

}
