// Calendar arithmetic by ICU.
#include "Simulator/Text/CalendarMath.hpp"

#include "Simulator/Text/IcuNames.hpp"
#include "Simulator/Text/StyleCache.hpp"

#include <unicode/calendar.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

namespace Simulator {

namespace {

constexpr std::array fieldsOfUnits = {
    std::pair(CalendarUnit::era, UCAL_ERA),
    std::pair(CalendarUnit::year, UCAL_YEAR),
    std::pair(CalendarUnit::month, UCAL_MONTH),
    std::pair(CalendarUnit::day, UCAL_DATE),
    std::pair(CalendarUnit::hour, UCAL_HOUR_OF_DAY),
    std::pair(CalendarUnit::minute, UCAL_MINUTE),
    std::pair(CalendarUnit::second, UCAL_SECOND),
    std::pair(CalendarUnit::nanosecond, UCAL_MILLISECOND),
    std::pair(CalendarUnit::weekday, UCAL_DAY_OF_WEEK),
    std::pair(CalendarUnit::weekdayOrdinal, UCAL_DAY_OF_WEEK_IN_MONTH),
    std::pair(CalendarUnit::weekOfMonth, UCAL_WEEK_OF_MONTH),
    std::pair(CalendarUnit::weekOfYear, UCAL_WEEK_OF_YEAR),
    std::pair(CalendarUnit::yearForWeekOfYear, UCAL_YEAR_WOY),
};

constexpr long nanosecondsPerMillisecond = 1'000'000;

UCalendarDateFields fieldOf(CalendarUnit unit)
{
    return std::ranges::find(fieldsOfUnits, unit, &std::pair<CalendarUnit, UCalendarDateFields>::first)->second;
}

/// ICU counts months from 0 and knows milliseconds at best.
long toIcuValue(const CalendarField& field)
{
    if (field.unit == CalendarUnit::month)
        return field.value - 1;
    return field.unit == CalendarUnit::nanosecond ? field.value / nanosecondsPerMillisecond : field.value;
}

long fromIcuValue(CalendarUnit unit, long value)
{
    if (unit == CalendarUnit::month)
        return value + 1;
    return unit == CalendarUnit::nanosecond ? value * nanosecondsPerMillisecond : value;
}

int bounded(long value)
{
    return static_cast<int>(std::clamp<long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// The calendar of the style, set to whatever date was last asked of it; null for an unknown one.
icu::Calendar* calendarFor(const CalendarStyle& style)
{
    static auto* calendars = new StyleCache<std::unique_ptr<icu::Calendar>>;
    if (!isKnownCalendar(style.calendar))
        return nullptr;
    const auto make = [](const StyleKey& key) {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(
            icuTimeZone(key.timeZone).release(), icuLocale(key.locale, key.calendar), status));
        return U_SUCCESS(status) ? std::move(calendar) : nullptr;
    };
    return calendars->find({{}, style.locale, style.calendar, style.timeZone}, make).get();
}

std::optional<double> momentOf(icu::Calendar& calendar)
{
    UErrorCode status = U_ZERO_ERROR;
    const UDate date = calendar.getTime(status);
    return U_SUCCESS(status) ? std::optional(secondsOfIcuDate(date)) : std::nullopt;
}

}

const std::vector<std::string>& calendarIdentifiers()
{
    static const auto* identifiers = new std::vector<std::string>{"gregorian", "buddhist", "chinese", "coptic",
        "ethiopic-amete-mihret", "ethiopic-amete-alem", "hebrew", "iso8601", "indian", "islamic", "islamic-civil",
        "japanese", "persian", "republicOfChina", "roc", "islamic-tbla", "islamic-umalqura", "ethiopic"};
    return *identifiers;
}

bool isKnownCalendar(std::string_view identifier)
{
    return std::ranges::find(calendarIdentifiers(), identifier) != calendarIdentifiers().end();
}

std::string calendarOfLocale(std::string_view locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(icuLocale(locale, {}), status));
    return U_SUCCESS(status) ? calendar->getType() : "gregorian";
}

std::optional<long> calendarField(double date, CalendarUnit unit, const CalendarStyle& style)
{
    icu::Calendar* const calendar = calendarFor(style);
    if (!calendar || !isDate(date))
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime(icuDate(date), status);
    const int value = calendar->get(fieldOf(unit), status);
    return U_SUCCESS(status) ? std::optional(fromIcuValue(unit, value)) : std::nullopt;
}

std::optional<double> addToDate(
    double date, const std::vector<CalendarField>& fields, const CalendarStyle& style, bool wrap)
{
    icu::Calendar* const calendar = calendarFor(style);
    if (!calendar || !isDate(date))
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime(icuDate(date), status);
    for (const auto& field : fields) {
        const bool fine = field.unit == CalendarUnit::nanosecond;
        const int amount = bounded(fine ? field.value / nanosecondsPerMillisecond : field.value);
        const auto icuField = field.unit == CalendarUnit::weekday ? UCAL_DATE : fieldOf(field.unit);
        if (wrap)
            calendar->roll(icuField, amount, status);
        else
            calendar->add(icuField, amount, status);
    }
    if (U_FAILURE(status))
        return std::nullopt;
    // ICU's milliseconds would drop the rest of the second's fraction.
    const double unchanged = secondsOfIcuDate(icuDate(date));
    const auto moved = momentOf(*calendar);
    return moved ? std::optional(date + (*moved - unchanged)) : std::nullopt;
}

std::vector<CalendarField> fieldsBetween(
    double from, double to, const std::vector<CalendarUnit>& units, const CalendarStyle& style)
{
    icu::Calendar* const calendar = calendarFor(style);
    if (!calendar || !isDate(from) || !isDate(to))
        return {};
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime(icuDate(from), status);
    std::vector<CalendarField> result;
    for (const auto& [unit, field] : fieldsOfUnits) {
        if (std::ranges::find(units, unit) == units.end())
            continue;
        const long difference = calendar->fieldDifference(icuDate(to), field, status);
        result.push_back(
            {unit, unit == CalendarUnit::nanosecond ? difference * nanosecondsPerMillisecond : difference});
    }
    return U_SUCCESS(status) ? result : std::vector<CalendarField>();
}

long firstWeekday(const CalendarStyle& style)
{
    const icu::Calendar* const calendar = calendarFor(style);
    UErrorCode status = U_ZERO_ERROR;
    return calendar ? calendar->getFirstDayOfWeek(status) : UCAL_SUNDAY;
}

long zoneOffset(double date, std::string_view timeZone)
{
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t raw = 0;
    std::int32_t summerTime = 0;
    if (isDate(date))
        icuTimeZone(timeZone)->getOffset(icuDate(date), false, raw, summerTime, status);
    return (raw + summerTime) / 1000;
}

std::optional<double> dateFromFields(const std::vector<CalendarField>& fields, const CalendarStyle& style)
{
    icu::Calendar* const calendar = calendarFor(style);
    if (!calendar)
        return std::nullopt;
    calendar->clear();
    for (const auto& field : fields)
        calendar->set(fieldOf(field.unit), bounded(toIcuValue(field)));
    return momentOf(*calendar);
}

}
