#include "Simulator/SpringBoard/ChargingView.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/BatteryView.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator {

namespace {

constexpr CGSize batterySize{110, 50};

}

void CSBatteryChargingView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    battery = makeView("_UIBatteryView", {}, "stock.charging.battery");
    const UI::Label text = makeLabel("", 17, FontWeight::regular, UI::Color::whiteColor());
    text.setTextAlignment(UI::TextAlignment::center);
    text.setAccessibilityIdentifier("stock.charging.label"_ns);
    label = text;
    addSubview(battery);
    addSubview(label);
}

void CSBatteryChargingView::layoutSubviews()
{
    const double width = bounds().size.width;
    battery.setFrame(CGRectMake((width - batterySize.width) / 2, 0, batterySize.width, batterySize.height));
    label.setFrame(CGRectMake(0, batterySize.height + 12, width, 24));
}

void CSBatteryChargingView::setBatteryVisible(bool visible)
{
    battery.setHidden(!visible);
}

void CSBatteryChargingView::update()
{
    showDeviceBattery(battery);
    battery.send<void, "setSaverModeActive:">(DeviceState::shared().battery.lowPower);
    const double level = DeviceState::shared().battery.level;
    const long percent = std::isfinite(level) ? std::lround(std::clamp(level, 0.0, 1.0) * 100) : 0;
    label.send<void, "setText:">(NS::String::fromUTF8(std::to_string(percent) + "% Charged"));
}

void registerChargingView()
{
    Binder<CSBatteryChargingView>("CSBatteryChargingView", "UIView")
        .init<"initWithFrame:", &CSBatteryChargingView::initWithFrame>()
        .def<"layoutSubviews", &CSBatteryChargingView::layoutSubviews>()
        .def<"setBatteryVisible:", &CSBatteryChargingView::setBatteryVisible>()
        .add();
}

}
