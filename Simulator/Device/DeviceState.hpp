// What the phone has and what surrounds it: screen, battery, weather, alarm, calendar, appearance, other extensions.
// Plain values; whoever changes them tells the shell (Shell::deviceChanged).
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

#include <nlohmann/json.hpp>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Simulator {

/// The numbers are the platform's.
enum class BatteryState { unknown = 0, unplugged = 1, charging = 2, full = 3 };
enum class InterfaceStyle { light = 1, dark = 2 };

struct Battery {
    /// From 0 to 1; below 0 while it is not known, and not a number where the gauge is broken.
    double level = 1;
    BatteryState state = BatteryState::unplugged;
    bool lowPower = false;
};

/// To be set before the first window.
struct ScreenSettings {
    CGSize size = {375, 812};
    double scale = 3;
};

/// Finished texts, as the weather library holds them. An empty one is absent. A value of another kind is given out as
/// the object of that kind, as a library does that has gone wrong.
struct WeatherReport {
    using Value = nlohmann::ordered_json;

    Value temperature;
    Value high;
    Value low;
    Value conditions;
    Value location;
    Value sunrise;
    Value sunset;
    /// Host path of a PNG.
    std::string image;
};

/// Local times are "2020-11-15T21:41:00" in the phone's time zone, whichever that is when they are used.
struct CalendarEvent {
    /// Nothing for an event without one.
    std::optional<std::string> title;
    std::string start;
    bool allDay = false;
};

struct DeviceState {
    static DeviceState& shared();

    std::string name = "iPhone";
    ScreenSettings screen;
    Battery battery;
    std::optional<WeatherReport> weather;
    /// Local time of the next alarm.
    std::optional<std::string> alarm;
    std::vector<CalendarEvent> events;
    /// Whether the user lets the shell read the calendar.
    bool grantsCalendar = true;
    bool hasFlashlight = true;
    bool hasCamera = true;
    /// Which form of the lock message does the work; the other one ends in it.
    bool locksByLongForm = true;
    /// Views are told of a change by `changeInterfaceStyle`.
    InterfaceStyle style = InterfaceStyle::light;
    /// Other extensions: "AFont", "LastLook", "Axon", "Filza".
    std::set<std::string> installed;
};

inline ScreenSettings& screenSettings()
{
    return DeviceState::shared().screen;
}

/// Seconds since 2001-01-01 UTC of a local time in the phone's time zone; nothing if the text is none.
std::optional<double> momentOfLocalTime(const std::string& text);
/// The reverse.
std::string localTimeText(double moment);
/// The first moment of the day that a moment lies in, and of the day after it.
double startOfDay(double moment);
double startOfNextDay(double moment);

}
