// The one device object, which reads the simulated battery.
#include "Simulator/UIKit/UIDevice.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

float UIDevice::batteryLevel() const
{
    return batteryMonitoringEnabled ? static_cast<float>(DeviceState::shared().battery.level) : -1;
}

UI::DeviceBatteryState UIDevice::batteryState() const
{
    const auto state = static_cast<UI::DeviceBatteryState>(DeviceState::shared().battery.state);
    return batteryMonitoringEnabled ? state : UI::DeviceBatteryState::unknown;
}

NS::String UIDevice::name() const
{
    return NS::String::fromUTF8(DeviceState::shared().name);
}

NS::String UIDevice::model() const
{
    return "iPhone"_ns;
}

NS::String UIDevice::systemName() const
{
    return "iOS"_ns;
}

NS::String UIDevice::systemVersion() const
{
    return "14.2"_ns;
}

static const StandInClass uiDevice("UIDevice", "NSObject", [](Binder<UIDevice>& binder) {
    binder.classMethod<"currentDevice", &sharedObject<UI::Device>>()
        .def<"batteryLevel", &UIDevice::batteryLevel>()
        .def<"batteryState", &UIDevice::batteryState>()
        .def<"name", &UIDevice::name>()
        .def<"model", &UIDevice::model>()
        .def<"localizedModel", &UIDevice::model>()
        .def<"systemName", &UIDevice::systemName>()
        .def<"systemVersion", &UIDevice::systemVersion>()
        .def<"userInterfaceIdiom", &UIDevice::userInterfaceIdiom>()
        .property<"isBatteryMonitoringEnabled", "setBatteryMonitoringEnabled:", &UIDevice::batteryMonitoringEnabled>()
        .add();
});

}
