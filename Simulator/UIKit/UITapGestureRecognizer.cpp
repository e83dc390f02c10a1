#include "Simulator/UIKit/UITapGestureRecognizer.hpp"

#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIControl.hpp"

#include <cmath>

namespace Simulator {

namespace {

constexpr double greatestMovement = 45;
constexpr double longestTap = 0.75;

}

/// A tap on a control is the control's, not that of a view around it.
void UITapGestureRecognizer::began(const UITouch& touch)
{
    start = touch.location;
    startTime = touch.timestamp;
    const auto* control = standInOrNull<UIControl>(touch.view);
    if (control && control != viewReference)
        fail();
}

void UITapGestureRecognizer::moved(const UITouch& touch)
{
    if (std::hypot(touch.location.x - start.x, touch.location.y - start.y) > greatestMovement)
        fail();
}

void UITapGestureRecognizer::ended(const UITouch& touch)
{
    moved(touch);
    if (state != State::possible)
        return;
    const unsigned long required = numberOfTapsRequired ? numberOfTapsRequired : 1;
    if (touch.timestamp - startTime > longestTap || touch.tapCount % required != 0)
        fail();
    else
        changeState(State::ended);
}

void registerUITapGestureRecognizer()
{
    using Recognizer = UITapGestureRecognizer;
    Binder<Recognizer>("UITapGestureRecognizer", "UIGestureRecognizer")
        .property<"numberOfTapsRequired", "setNumberOfTapsRequired:", &Recognizer::numberOfTapsRequired>()
        .add();
}

}
