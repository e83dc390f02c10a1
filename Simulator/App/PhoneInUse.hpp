// The phone that is shown where nothing else is asked for: a new one is full and has nothing to tell.
#pragma once

#include "Simulator/Control/Envelope.hpp"

namespace Simulator::App {

/// Battery, weather, alarm and events, as `device.set` takes them, of somebody's phone at a local time. What lies ahead
/// of it lies within a day.
Control::Json phoneInUse(const std::string& time);

/// The host's time in a zone of the phone, "2020-11-15T21:41:00".
std::string localTimeNow(const std::string& timeZone);

}
