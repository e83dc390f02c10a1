#include "Simulator/UIKit/UILongPressGestureRecognizer.hpp"

#include "Simulator/Runtime/Binder.hpp"

#include <cmath>

namespace Simulator {

UILongPressGestureRecognizer::~UILongPressGestureRecognizer()
{
    stopWaiting();
}

void UILongPressGestureRecognizer::stopWaiting()
{
    Loop::shared().cancel(std::exchange(timer, 0));
}

void UILongPressGestureRecognizer::began(const UITouch& touch)
{
    start = touch.location;
    stopWaiting();
    timer = Loop::shared().schedule(
        minimumPressDuration,
        [this] {
            if (enabled && viewReference && state == State::possible)
                changeState(State::began);
        },
        WorkKind::Timer);
}

/// The bound holds until the press is recognised; from then on each movement is a change.
void UILongPressGestureRecognizer::moved(const UITouch& touch)
{
    if (state != State::possible) {
        changeState(State::changed);
        return;
    }
    if (std::hypot(touch.location.x - start.x, touch.location.y - start.y) > allowableMovement)
        fail();
}

void UILongPressGestureRecognizer::ended(const UITouch&)
{
    if (state == State::possible)
        fail();
    else
        changeState(State::ended);
}

void UILongPressGestureRecognizer::reset()
{
    stopWaiting();
    UIGestureRecognizer::reset();
}

void registerUILongPressGestureRecognizer()
{
    using Recognizer = UILongPressGestureRecognizer;
    Binder<Recognizer>("UILongPressGestureRecognizer", "UIGestureRecognizer")
        .property<"minimumPressDuration", "setMinimumPressDuration:", &Recognizer::minimumPressDuration>()
        .property<"allowableMovement", "setAllowableMovement:", &Recognizer::allowableMovement>()
        .add();
}

}
