// The device's state and its local times.
#include "Simulator/SpringBoard/DeviceState.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Foundation/CalendarMath.hpp"
#include "Simulator/Foundation/PhoneLocale.hpp"

#include <cstdio>

namespace Simulator {

namespace {

CalendarStyle calendarOfPhone()
{
    return {"gregorian", "en_US", PhoneLocale::shared().timeZone};
}

double startOfDayAfter(double moment, long days)
{
    const CalendarStyle style = calendarOfPhone();
    const std::vector<CalendarField> day
        = {{CalendarUnit::Year, calendarField(moment, CalendarUnit::Year, style).value_or(2001)},
            {CalendarUnit::Month, calendarField(moment, CalendarUnit::Month, style).value_or(1)},
            {CalendarUnit::Day, calendarField(moment, CalendarUnit::Day, style).value_or(1) + days}};
    return dateFromFields(day, style).value_or(moment);
}

}

DeviceState& DeviceState::shared()
{
    return Phone::part<DeviceState>();
}

std::optional<double> momentOfLocalTime(const std::string& text)
{
    int year, month, day, hour, minute, second, length = 0;
    const int read
        = std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%n", &year, &month, &day, &hour, &minute, &second, &length);
    if (read != 6 || static_cast<std::size_t>(length) != text.size())
        return std::nullopt;
    return dateFromFields(
        {{CalendarUnit::Year, year}, {CalendarUnit::Month, month}, {CalendarUnit::Day, day}, {CalendarUnit::Hour, hour},
            {CalendarUnit::Minute, minute}, {CalendarUnit::Second, second}},
        calendarOfPhone());
}

double startOfDay(double moment)
{
    return startOfDayAfter(moment, 0);
}
double startOfNextDay(double moment)
{
    return startOfDayAfter(moment, 1);
}

}
