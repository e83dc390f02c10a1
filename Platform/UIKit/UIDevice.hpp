// The device: its battery.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace UI {

enum class DeviceBatteryState : long { unknown = 0, unplugged = 1, charging = 2, full = 3 };

class Device : public ObjC::Class_<Device, NS::Object, "UIDevice"> {
public:
    using Class_::Class_;

    static Device currentDevice() { return sendClass<Device, "currentDevice">(); }
    void setBatteryMonitoringEnabled(bool enabled) const { send<void, "setBatteryMonitoringEnabled:">(enabled); }
    /// From 0 to 1; −1 while it is not known.
    float batteryLevel() const { return send<float, "batteryLevel">(); }
    DeviceBatteryState batteryState() const { return send<DeviceBatteryState, "batteryState">(); }
    NS::String name() const { return send<NS::String, "name">(); }
};

}
