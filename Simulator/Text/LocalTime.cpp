// By the calendar of the zone, so that clocks may be put forward and back.
#include "Simulator/Text/LocalTime.hpp"

#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/CalendarMath.hpp"
#include "Simulator/Text/DateText.hpp"

#include <cstdio>

namespace Simulator {

std::optional<double> momentOfLocalTime(const std::string& text, std::string_view timeZone)
{
    int year, month, day, hour, minute, second, length = 0;
    const int read
        = std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%n", &year, &month, &day, &hour, &minute, &second, &length);
    if (read != 6 || static_cast<std::size_t>(length) != text.size())
        return std::nullopt;
    return dateFromFields(
        {{CalendarUnit::year, year}, {CalendarUnit::month, month}, {CalendarUnit::day, day}, {CalendarUnit::hour, hour},
            {CalendarUnit::minute, minute}, {CalendarUnit::second, second}},
        {"gregorian", "en_US", timeZone});
}

std::string localTimeText(double moment, std::string_view timeZone)
{
    return toUtf8(formatDate(moment, {u"yyyy-MM-dd'T'HH:mm:ss", "en_US_POSIX", "gregorian", timeZone}));
}

}
