// The charging view's battery and its caption.
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
    m_battery = makeView("_UIBatteryView", {}, "stock.charging.battery");
    m_label = makeLabel("", 17, FontWeight::regular, UI::Color::whiteColor());
    m_label.setTextAlignment(UI::TextAlignment::center);
    m_label.setAccessibilityIdentifier("stock.charging.label"_ns);
    addSubview(m_battery);
    addSubview(m_label);
}

void CSBatteryChargingView::placeParts()
{
    const double width = bounds().size.width;
    m_battery.setFrame(CGRectMake((width - batterySize.width) / 2, 0, batterySize.width, batterySize.height));
    m_label.setFrame(CGRectMake(0, batterySize.height + 12, width, 24));
}

void CSBatteryChargingView::setBatteryVisible(bool visible)
{
    m_battery.setHidden(!visible);
}

void CSBatteryChargingView::update()
{
    showDeviceBattery(m_battery);
    m_battery.send<void, "setSaverModeActive:">(DeviceState::shared().battery.lowPower);
    const double level = DeviceState::shared().battery.level;
    const long percent = std::isfinite(level) ? std::lround(std::clamp(level, 0.0, 1.0) * 100) : 0;
    m_label.setText(NS::String::fromUTF8(std::to_string(percent) + "% Charged"));
}

static const StandInClass csCoverSheetViewBase(
    "CSCoverSheetViewBase", "UIView", [](Binder<UIView>& binder) { binder.add(); });

static const StandInClass csBatteryChargingView(
    "CSBatteryChargingView", "CSCoverSheetViewBase", [](Binder<CSBatteryChargingView>& binder) {
        binder.init<"initWithFrame:", &CSBatteryChargingView::initWithFrame>()
            .def<"setBatteryVisible:", &CSBatteryChargingView::setBatteryVisible>()
            .add();
    });

}
