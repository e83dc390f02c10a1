// What a clock on the wall shows, by the C library and rules written out: nothing of it comes from the phone.
#pragma once

#include <ctime>
#include <string>

namespace Support {

class WallClock {
public:
    /// The zone as POSIX writes its rules, "CET-1CEST,M3.5.0,M10.5.0/3"; the local time as the protocol does.
    WallClock(const std::string& zone, const std::string& localTime);

    void setZone(const std::string& zone) { m_zone = zone; }
    void advance(double seconds) { m_moment += seconds; }
    /// Seconds to the next whole minute, and a little more.
    double toNextMinute() const;
    /// By strftime, in English.
    std::string read(const char* format) const;
    int minuteOfDay() const;

private:
    std::tm fields() const;

    std::string m_zone;
    double m_moment;
};

}
