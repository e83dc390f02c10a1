// The large battery that shows for a moment when the phone is plugged in.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct CSBatteryChargingView : UIView {
    void initWithFrame(CGRect frame);
    void placeParts() override;
    void setBatteryVisible(bool visible);
    /// Takes over the device's battery.
    void update();

private:
    UI::View m_battery;
    UI::Label m_label;
};

}
