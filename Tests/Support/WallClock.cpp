// Dates by the C library.
#include "Tests/Support/WallClock.hpp"

#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace Support {

namespace {

/// The C library knows one zone at a time.
void useZone(const std::string& zone)
{
    setenv("TZ", zone.c_str(), 1);
    tzset();
}

}

WallClock::WallClock(const std::string& zone, const std::string& localTime)
    : m_zone(zone)
{
    std::tm fields{};
    if (!strptime(localTime.c_str(), "%Y-%m-%dT%H:%M:%S", &fields))
        throw std::invalid_argument(localTime);
    fields.tm_isdst = -1;
    useZone(zone);
    m_moment = static_cast<double>(std::mktime(&fields));
}

double WallClock::toNextMinute() const
{
    constexpr double little = 0.5;
    const double since = m_moment - little;
    return 60 - (since - 60 * std::floor(since / 60));
}

std::tm WallClock::fields() const
{
    useZone(m_zone);
    const auto seconds = static_cast<std::time_t>(std::floor(m_moment));
    std::tm fields{};
    localtime_r(&seconds, &fields);
    return fields;
}

std::string WallClock::read(const char* format) const
{
    const std::tm now = fields();
    char text[128];
    return {text, std::strftime(text, sizeof text, format, &now)};
}

int WallClock::minuteOfDay() const
{
    const std::tm now = fields();
    return now.tm_hour * 60 + now.tm_min;
}

}
