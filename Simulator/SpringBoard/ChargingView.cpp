#include "Simulator/SpringBoard/ChargingView.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/BatteryView.hpp"
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
    label = makeLabel("", 17, FontWeight::regular, UI::Color::whiteColor());
    label.setTextAlignment(UI::TextAlignment::center);
    label.setAccessibilityIdentifier("stock.charging.label"_ns);
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
    label.setText(NS::String::fromUTF8(std::to_string(percent) + "% Charged"));
}

static const StandInClass csBatteryChargingView(
    "CSBatteryChargingView", "UIView", [](Binder<CSBatteryChargingView>& binder) {
        binder.init<"initWithFrame:", &CSBatteryChargingView::initWithFrame>()
            .def<"layoutSubviews", &CSBatteryChargingView::layoutSubviews>()
            .def<"setBatteryVisible:", &CSBatteryChargingView::setBatteryVisible>()
            .add();
    });

}
