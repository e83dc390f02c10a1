// The battery's outline, its fill and the colour that goes with its state.
#include "Simulator/SpringBoard/BatteryView.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double lowCharge = 0.2;
constexpr double terminalShare = 0.08;

}

void _UIBatteryView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    m_body = makeView("UIView");
    m_fill = makeView("UIView");
    m_terminal = makePlate({}, whiteWithAlpha(0.5), 1);
    for (const UI::View& part : {m_body, m_fill, m_terminal})
        addSubview(part);
    m_body.layer().setBorderColor(whiteWithAlpha(0.5).CGColor());
}

void _UIBatteryView::layoutSubviews()
{
    const CGSize size = bounds().size;
    const double cap = size.width * terminalShare;
    const double line = std::max(1.0, size.height / 12);
    const CGRect shell = CGRectMake(0, 0, size.width - cap, size.height);
    m_body.setFrame(shell);
    m_body.layer().setBorderWidth(line);
    m_body.layer().setCornerRadius(size.height * 0.3);
    const double room = std::max(0.0, shell.size.width - 4 * line);
    m_fill.setFrame(CGRectMake(2 * line, 2 * line, room * chargePercent, std::max(0.0, size.height - 4 * line)));
    m_fill.layer().setCornerRadius(size.height * 0.15);
    m_fill.setBackgroundColor(fillColour());
    m_terminal.setFrame(CGRectMake(size.width - cap + 1, size.height / 3, std::max(0.0, cap - 1), size.height / 3));
}

UI::Color _UIBatteryView::fillColour() const
{
    if (saverModeActive)
        return UI::Color::colorWithRed(1, 0.8, 0, 1);
    if (chargingState)
        return UI::Color::colorWithRed(0.2, 0.78, 0.35, 1);
    return chargePercent <= lowCharge ? UI::Color::colorWithRed(1, 0.23, 0.19, 1) : UI::Color::whiteColor();
}

void _UIBatteryView::setSaverModeActive(bool active)
{
    saverModeActive = active;
    setNeedsLayout();
}

void _UIBatteryView::setChargePercent(double charge)
{
    chargePercent = charge >= 0 ? std::min(charge, 1.0) : 0;
    setNeedsLayout();
}

void _UIBatteryView::setChargingState(long state)
{
    chargingState = state;
    setNeedsLayout();
}

void showDeviceBattery(const UI::View& batteryView)
{
    const Battery& battery = DeviceState::shared().battery;
    batteryView.send<void, "setChargePercent:">(battery.level);
    const bool charges = battery.state == BatteryState::charging || battery.state == BatteryState::full;
    batteryView.send<void, "setChargingState:">(charges ? 1L : 0L);
}

static const StandInClass uiBatteryView("_UIBatteryView", "UIView", [](Binder<_UIBatteryView>& binder) {
    binder.init<"initWithFrame:", &_UIBatteryView::initWithFrame>()
        .def<"layoutSubviews", &_UIBatteryView::layoutSubviews>()
        .readonly<"saverModeActive", &_UIBatteryView::saverModeActive>()
        .def<"setSaverModeActive:", &_UIBatteryView::setSaverModeActive>()
        .readonly<"chargePercent", &_UIBatteryView::chargePercent>()
        .def<"setChargePercent:", &_UIBatteryView::setChargePercent>()
        .readonly<"chargingState", &_UIBatteryView::chargingState>()
        .def<"setChargingState:", &_UIBatteryView::setChargingState>()
        .add();
});

}
