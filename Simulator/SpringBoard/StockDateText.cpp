// The system's patterns, in the phone's locale and zone.
#include "Simulator/SpringBoard/StockDateText.hpp"

#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Text/DateText.hpp"
#include "Simulator/Text/HourCycle.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Simulator {

namespace {

/// The lock screen leaves the part of the day out: "h:mm a" becomes "h:mm", "ah:mm" too.
std::u16string withoutDayPeriod(std::u16string pattern)
{
    std::erase_if(pattern, [](char16_t letter) { return letter == u'a' || letter == u'b' || letter == u'B'; });
    const auto isSpace = [](char16_t letter) { return letter == u' ' || letter == u'\u00a0' || letter == u'\u202f'; };
    while (!pattern.empty() && isSpace(pattern.back()))
        pattern.pop_back();
    while (!pattern.empty() && isSpace(pattern.front()))
        pattern.erase(pattern.begin());
    return pattern;
}

NS::String formatted(const std::u16string& pattern, const NS::Locale& locale, const NS::Date& date)
{
    if (!date)
        return {};
    const auto formatter = NS::DateFormatter::formatter();
    formatter.setLocale(locale);
    formatter.setDateFormat(NS::String::fromUTF8(toUtf8(pattern)));
    return formatter.stringFromDate(date);
}

}

NS::String stockTimeText(const NS::Date& date)
{
    const NS::String locale = NS::Locale::currentLocale().localeIdentifier();
    std::u16string pattern = patternForSkeleton(u"jmm", locale.utf8());
    if (const auto position = PhoneLocale::shared().twentyFourHour)
        pattern = withHourCycle(pattern, *position);
    return formatted(withoutDayPeriod(pattern), NS::Locale::withIdentifier(locale), date);
}

NS::String stockDateText(const NS::Date& date)
{
    const NS::Locale locale = NS::Locale::currentLocale();
    return formatted(patternForSkeleton(u"EEEEMMMMd", locale.localeIdentifier().utf8()), locale, date);
}

NS::String timerText(double seconds)
{
    constexpr double longestTimer = 100 * 3600 - 1;
    const int total = static_cast<int>(std::clamp(std::ceil(seconds), 0.0, longestTimer));
    char text[32];
    if (total >= 3600)
        std::snprintf(text, sizeof text, "%d:%02d:%02d", total / 3600, total / 60 % 60, total % 60);
    else
        std::snprintf(text, sizeof text, "%d:%02d", total / 60, total % 60);
    return NS::String::fromUTF8(text);
}

}
