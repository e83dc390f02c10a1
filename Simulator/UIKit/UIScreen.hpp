// The phone's screen, and the light or dark appearance of what it shows.
#pragma once

#include "Platform/UIKit/UIScreen.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct UIWindow;

using UserInterfaceStyle = UI::UserInterfaceStyle;

/// What the simulated device has; the screen object reads it.
struct ScreenSettings {
    CGSize size = {375, 812};
    double scale = 3;
    UserInterfaceStyle style = UserInterfaceStyle::light;
};

/// To be set before the first window; the style later through `changeInterfaceStyle`.
ScreenSettings& screenSettings();

/// Changes the style and tells every view and view controller of the window so.
void changeInterfaceStyle(UIWindow& window, UserInterfaceStyle style);

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
