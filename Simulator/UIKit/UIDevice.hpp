// The device: its battery, its name.
#pragma once

#include "Platform/UIKit/UIDevice.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIDevice : StandIn {
    using Root = UIDevice;

    /// Both are unknown while nobody watches the battery.
    float batteryLevel() const;
    UI::DeviceBatteryState batteryState() const;
    NS::String name() const;
    NS::String model() const;
    NS::String systemName() const;
    NS::String systemVersion() const;
    long userInterfaceIdiom() const { return 0; }

    bool batteryMonitoringEnabled = false;
};

}
