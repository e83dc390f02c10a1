// Calendar arithmetic in any of the phone's calendars and time zones.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

enum class CalendarUnit {
    era,
    year,
    month,
    day,
    hour,
    minute,
    second,
    nanosecond,
    weekday,
    weekdayOrdinal,
    weekOfMonth,
    weekOfYear,
    yearForWeekOfYear
};

struct CalendarField {
    CalendarUnit unit;
    long value;
};

/// A calendar by the phone's identifier ("gregorian", "islamic-civil"), a zone and a locale (for the first weekday).
struct CalendarStyle {
    std::string_view calendar;
    std::string_view locale;
    std::string_view timeZone;
};

bool isKnownCalendar(std::string_view identifier);
const std::vector<std::string>& calendarIdentifiers();
/// The calendar a locale uses unless told otherwise: "buddhist" for "th_TH".
std::string calendarOfLocale(std::string_view locale);

/// Dates are seconds since 2001-01-01 UTC. Nothing comes back for an unknown calendar or a date that is no number.
std::optional<long> calendarField(double date, CalendarUnit, const CalendarStyle&);
std::optional<double> addToDate(
    double date, const std::vector<CalendarField>&, const CalendarStyle&, bool wrap = false);
/// How far it is from one date to the other in the units, the largest first.
std::vector<CalendarField> fieldsBetween(
    double from, double to, const std::vector<CalendarUnit>& units, const CalendarStyle&);
/// 1 is Sunday.
long firstWeekday(const CalendarStyle&);
/// Seconds east of UTC at a date.
long zoneOffset(double date, std::string_view timeZone);
std::optional<double> dateFromFields(const std::vector<CalendarField>&, const CalendarStyle&);

}
