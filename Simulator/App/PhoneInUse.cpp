#include "Simulator/App/PhoneInUse.hpp"

#include "Simulator/Text/DateText.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace Simulator::App {

using Control::Json;
using namespace std::chrono;

namespace {

// Seconds from 1970 to 2001, where the phone's count begins.
constexpr double referenceDateSinceEpoch = 978307200;

std::string text(local_seconds time)
{
    const auto day = floor<days>(time);
    const year_month_day date{day};
    const hh_mm_ss clock{time - day};
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02uT%02d:%02d:%02d", int(date.year()), unsigned(date.month()),
        unsigned(date.day()), int(clock.hours().count()), int(clock.minutes().count()), int(clock.seconds().count()));
    return buffer;
}

// The text was checked before.
local_seconds timeOf(const std::string& text)
{
    int year = 0, hour = 0, minute = 0, second = 0;
    unsigned month = 0, day = 0;
    std::sscanf(text.c_str(), "%4d-%2u-%2uT%2d:%2d:%2d", &year, &month, &day, &hour, &minute, &second);
    return local_days{std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)} + hours(hour)
        + minutes(minute) + seconds(second);
}

// The time of day when it comes next; the last moment that the phone can be told where it comes no more.
local_seconds next(minutes timeOfDay, local_seconds time)
{
    const local_seconds last = local_days{year(9999) / December / 31} + days(1) - seconds(1);
    const local_seconds today = floor<days>(time) + timeOfDay;
    return std::min(today > time ? today : today + days(1), last);
}

}

Json phoneInUse(const std::string& time)
{
    const local_seconds now = timeOf(time);
    // The event is the one that the stock notification speaks of.
    return {{"battery", {{"level", 0.87}, {"state", "unplugged"}}},
        {"weather",
            {{"temperature", "21°"}, {"high", "24°"}, {"low", "15°"}, {"conditions", "Partly Cloudy"},
                {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}}},
        {"alarm", text(next(6h + 30min, now))},
        {"events",
            Json::array({{{"title", "Dentist"}, {"start", text(next(9h + 30min, now))}, {"allDay", false}}})}};
}

std::string localTimeNow(const std::string& timeZone)
{
    const double moment = duration<double>(system_clock::now().time_since_epoch()).count() - referenceDateSinceEpoch;
    const std::u16string text
        = formatDate(moment, {u"yyyy-MM-dd'T'HH:mm:ss", "en_US_POSIX", "gregorian", timeZone});
    return std::string(text.begin(), text.end());
}

}
