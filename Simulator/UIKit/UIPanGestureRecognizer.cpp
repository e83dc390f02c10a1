// A finger that moves on. Only what scrolls up and down has one here, so a movement to the side does not count.
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include <cmath>

namespace Simulator {

namespace {

/// So far a finger may move and still rest.
constexpr double leastMovement = 10;

struct UIPanGestureRecognizer : UIGestureRecognizer {
    void began(const UITouch& touch) override { m_start = touch.location; }

    void moved(const UITouch& touch) override
    {
        if (state != State::possible)
            changeState(State::changed);
        else if (std::abs(touch.location.y - m_start.y) >= leastMovement)
            changeState(State::began);
    }

    void ended(const UITouch&) override
    {
        if (state == State::possible)
            fail();
        else
            changeState(State::ended);
    }

private:
    CGPoint m_start;
};

}

static const StandInClass uiPanGestureRecognizer(
    "UIPanGestureRecognizer", "UIGestureRecognizer", [](Binder<UIPanGestureRecognizer>& binder) { binder.add(); });

}
