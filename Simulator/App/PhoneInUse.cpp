// The weather, alarm, event and battery of a phone in use, by its own clock.
#include "Simulator/App/PhoneInUse.hpp"

#include "Simulator/Text/LocalTime.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace Simulator::App {

using Control::Json;

namespace {

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;

/// Where a clock shows the text, whatever its zone. The text was checked before.
double momentOf(const std::string& text)
{
    return momentOfLocalTime(text, "UTC").value_or(0);
}

/// The time of day when it comes next; the last moment that the phone can be told where it comes no more.
std::string next(double timeOfDay, double moment)
{
    const double today = std::floor(moment / day) * day + timeOfDay;
    return localTimeText(std::min(today > moment ? today : today + day, momentOf("9999-12-31T23:59:59")), "UTC");
}

}

Json phoneInUse(const std::string& time)
{
    const double now = momentOf(time);
    // The event is the one that the stock notification speaks of.
    return {{"battery", {{"level", 0.87}, {"state", "unplugged"}}},
        {"weather",
            {{"temperature", "21°"}, {"high", "24°"}, {"low", "15°"}, {"conditions", "Partly Cloudy"},
                {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}}},
        {"alarm", next(6 * hour + 30 * minute, now)},
        {"events",
            Json::array({{{"title", "Dentist"}, {"start", next(9 * hour + 30 * minute, now)}, {"allDay", false}}})}};
}

std::string localTimeNow(const std::string& timeZone)
{
    // The phone counts from 2001.
    constexpr double referenceDateSinceEpoch = 978307200;
    using namespace std::chrono;
    const double sinceEpoch = duration<double>(system_clock::now().time_since_epoch()).count();
    return localTimeText(sinceEpoch - referenceDateSinceEpoch, timeZone);
}

}
