// A finger on the screen, as views and recognisers are told of it.
#pragma once

#include "Platform/UIKit/UIView.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

enum class TouchPhase : long { began = 0, moved = 1, stationary = 2, ended = 3, cancelled = 4 };

struct UITouch : StandIn {
    using Root = UITouch;

    CGPoint locationInView(const UI::View& view) const;
    CGPoint previousLocationInView(const UI::View& view) const;

    /// In the window's coordinates.
    CGPoint location;
    CGPoint previousLocation;
    TouchPhase phase = TouchPhase::began;
    /// Seconds since the phone's start.
    double timestamp = 0;
    unsigned long tapCount = 1;
    UI::View view;
    UI::View window;
};

struct UIEvent : StandIn {
    using Root = UIEvent;
    NS::Object allTouches;
    double timestamp = 0;
};

/// The touch of the set that comes with a touch message; null if there is none.
UITouch* touchOf(const NS::Object& touches);

}
