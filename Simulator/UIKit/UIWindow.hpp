// The root of a tree of views that is on the screen.
#pragma once

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct UIWindow : UIView {
    void init();
    void makeKeyAndVisible() { setHidden(false); }
    void setRootViewController(const UI::ViewController& controller);

    UI::ViewController rootViewController;
    double windowLevel = 0;
    /// What its views were told last.
    InterfaceStyle announcedStyle = DeviceState::shared().style;
};

}
