// The battery of the status bar and of the charging view.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct _UIBatteryView : UIView {
    void initWithFrame(CGRect frame);
    void layoutSubviews();
    void setSaverModeActive(bool active);
    void setChargePercent(double charge);
    void setCharging(bool charging);

    double chargePercent = 1;
    bool charging = false;
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
