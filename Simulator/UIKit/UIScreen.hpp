// The phone's screen, and the light or dark appearance of what it shows.
#pragma once

#include "Platform/UIKit/UIScreen.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIWindow;

using UserInterfaceStyle = UI::UserInterfaceStyle;

/// Changes the device's style and tells every view and view controller of the window so.
void changeInterfaceStyle(UIWindow& window, InterfaceStyle style);

/// The traits that hold now.
NS::Object currentTraits();

struct UITraitCollection : StandIn {
    using Root = UITraitCollection;
    UserInterfaceStyle style = UserInterfaceStyle::light;
    double displayScale = 1;
};

struct UIScreen : StandIn {
    using Root = UIScreen;
    CGRect bounds() const;
    double scale() const;
    NS::Object traitCollection() const { return currentTraits(); }
};

}
