// The phone's names of calendars and zones, and its dates and texts, as ICU takes them: for this folder alone.
#pragma once

#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>
#include <string_view>

namespace Simulator {

/// The locale with the calendar as its keyword; unknown calendars leave the locale's own.
icu::Locale icuLocale(std::string_view locale, std::string_view calendar);
std::string icuCalendarName(std::string_view calendar);
/// UTC for an unknown zone.
std::unique_ptr<icu::TimeZone> icuTimeZone(std::string_view identifier);

/// ICU's dates are milliseconds since 1970. Dates beyond what its calendars can tell are held at the last they can.
bool isDate(double seconds);
double icuDate(double seconds);
double secondsOfIcuDate(double milliseconds);

/// A view on the text, valid as long as it.
icu::UnicodeString icuText(std::u16string_view);
std::u16string plainText(const icu::UnicodeString&);

}
