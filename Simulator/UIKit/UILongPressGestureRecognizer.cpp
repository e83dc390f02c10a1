// A finger that rests on the screen.
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include <cmath>

namespace Simulator {

namespace {

struct UILongPressGestureRecognizer : UIGestureRecognizer {
    ~UILongPressGestureRecognizer() override { stopWaiting(); }

    void began(const UITouch& touch) override
    {
        m_start = touch.location;
        stopWaiting();
        m_timer = Loop::shared().schedule(
            minimumPressDuration,
            [this] {
                if (enabled && viewReference && state == State::possible)
                    changeState(State::began);
            },
            WorkKind::timer);
    }

    /// The bound holds until the press is recognised; from then on each movement is a change.
    void moved(const UITouch& touch) override
    {
        if (state != State::possible) {
            changeState(State::changed);
            return;
        }
        if (std::hypot(touch.location.x - m_start.x, touch.location.y - m_start.y) > allowableMovement)
            fail();
    }

    void ended(const UITouch&) override
    {
        if (state == State::possible)
            fail();
        else
            changeState(State::ended);
    }

    void reset() override
    {
        stopWaiting();
        UIGestureRecognizer::reset();
    }

    double minimumPressDuration = 0.5;
    double allowableMovement = 10;

private:
    void stopWaiting() { Loop::shared().cancel(std::exchange(m_timer, 0)); }

    CGPoint m_start;
    TimerId m_timer = 0;
};

}

static const StandInClass uiLongPressGestureRecognizer(
    "UILongPressGestureRecognizer", "UIGestureRecognizer", [](Binder<UILongPressGestureRecognizer>& binder) {
        using Recognizer = UILongPressGestureRecognizer;
        binder.property<"minimumPressDuration", "setMinimumPressDuration:", &Recognizer::minimumPressDuration>()
            .property<"allowableMovement", "setAllowableMovement:", &Recognizer::allowableMovement>()
            .add();
    });

}
