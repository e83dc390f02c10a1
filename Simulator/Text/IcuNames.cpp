// Calendars, zones, dates and texts translated between the phone and ICU.
#include "Simulator/Text/IcuNames.hpp"

#include <unicode/ucal.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Simulator {

namespace {

constexpr double secondsFrom1970To2001 = 978307200;
/// About the year 30,000 either way: ICU's astronomical calendars take ever longer beyond.
constexpr double furthestDate = 9e11;

/// Where the phone's name of a calendar is not ICU's.
struct CalendarName {
    std::string_view phone;
    const char* icu;
};
constexpr std::array calendarNames = {
    CalendarName{"gregorian", "gregorian"},
    CalendarName{"ethiopic-amete-mihret", "ethiopic"},
    CalendarName{"ethiopic-amete-alem", "ethiopic-amete-alem"},
    CalendarName{"republicOfChina", "roc"},
};

}

icu::Locale icuLocale(std::string_view locale, std::string_view calendar)
{
    icu::Locale result(std::string(locale).c_str());
    if (result.isBogus())
        result = icu::Locale::getRoot();
    if (calendar.empty())
        return result;
    UErrorCode status = U_ZERO_ERROR;
    result.setKeywordValue("calendar", icuCalendarName(calendar).c_str(), status);
    return result;
}

std::string icuCalendarName(std::string_view calendar)
{
    const auto known = std::ranges::find(calendarNames, calendar, &CalendarName::phone);
    return std::string(known == calendarNames.end() ? calendar : std::string_view(known->icu));
}

std::unique_ptr<icu::TimeZone> icuTimeZone(std::string_view identifier)
{
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(
        icu::UnicodeString::fromUTF8({identifier.data(), static_cast<int>(identifier.size())})));
    if (*zone == icu::TimeZone::getUnknown())
        zone.reset(icu::TimeZone::getGMT()->clone());
    return zone;
}

bool isDate(double seconds)
{
    return !std::isnan(seconds);
}

double icuDate(double seconds)
{
    return (std::clamp(seconds, -furthestDate, furthestDate) + secondsFrom1970To2001) * 1000;
}

double secondsOfIcuDate(double milliseconds)
{
    return milliseconds / 1000 - secondsFrom1970To2001;
}

icu::UnicodeString icuText(std::u16string_view text)
{
    return icu::UnicodeString(false, text.data(), static_cast<int>(text.size()));
}

std::u16string plainText(const icu::UnicodeString& text)
{
    return std::u16string(text.getBuffer(), static_cast<std::size_t>(text.length()));
}

}
