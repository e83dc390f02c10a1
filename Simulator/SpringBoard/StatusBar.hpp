// The line at the top: network, radio and battery, and the padlock where the screen has no room of its own for it.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct UIStatusBar_Modern : UIView {
    void addParts() override;
    void layoutSubviews();
    /// The network's name on the lock screen, the time elsewhere.
    void setLeadingText(const NS::String& text);
    /// Takes over the device's battery.
    void update();

private:
    void layOutBars(double right, double middle);

    UI::Label m_leading;
    std::vector<UI::View> m_bars;
    UI::View m_wifi;
    UI::View m_battery;
    /// The saver mode is told once, and again when it changes.
    std::optional<bool> m_shownSaverMode;
};

}
