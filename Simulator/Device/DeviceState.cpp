// The device's state and its local times.
#include "Simulator/Device/DeviceState.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Text/CalendarMath.hpp"
#include "Simulator/Text/LocalTime.hpp"

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
        = {{CalendarUnit::year, calendarField(moment, CalendarUnit::year, style).value_or(2001)},
            {CalendarUnit::month, calendarField(moment, CalendarUnit::month, style).value_or(1)},
            {CalendarUnit::day, calendarField(moment, CalendarUnit::day, style).value_or(1) + days}};
    return dateFromFields(day, style).value_or(moment);
}

}

DeviceState& DeviceState::shared()
{
    return Phone::part<DeviceState>();
}

PhoneLocale& PhoneLocale::shared()
{
    return Phone::part<PhoneLocale>();
}

std::optional<double> momentOfLocalTime(const std::string& text)
{
    return momentOfLocalTime(text, PhoneLocale::shared().timeZone);
}
std::string localTimeText(double moment)
{
    return localTimeText(moment, PhoneLocale::shared().timeZone);
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
