// The battery of the status bar and of the charging view.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct _UIBatteryView : UIView {
    void initWithFrame(CGRect frame);
    void layoutSubviews();
    void setSaverModeActive(bool active);
    void setChargePercent(double charge);
    void setChargingState(long state);

    double chargePercent = 1;
    /// 1 while the battery is being charged.
    long chargingState = 0;
    bool saverModeActive = false;

private:
    UI::Color fillColour() const;

    UI::View m_body;
    UI::View m_fill;
    UI::View m_terminal;
};

/// Tells a battery view the level and state of the device's battery.
void showDeviceBattery(const UI::View& batteryView);

}
