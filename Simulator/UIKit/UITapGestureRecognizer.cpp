// One or more short touches.
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIControl.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include <cmath>

namespace Simulator {

namespace {

constexpr double greatestMovement = 45;
constexpr double longestTap = 0.75;

struct UITapGestureRecognizer : UIGestureRecognizer {
    /// A tap on a control is the control's, not that of a view around it.
    void began(const UITouch& touch) override
    {
        m_start = touch.location;
        m_startTime = touch.timestamp;
        const auto* control = standInOrNull<UIControl>(touch.view);
        if (control && control != viewReference)
            fail();
    }

    void moved(const UITouch& touch) override
    {
        if (std::hypot(touch.location.x - m_start.x, touch.location.y - m_start.y) > greatestMovement)
            fail();
    }

    void ended(const UITouch& touch) override
    {
        moved(touch);
        if (state != State::possible)
            return;
        const unsigned long required = numberOfTapsRequired ? numberOfTapsRequired : 1;
        if (touch.timestamp - m_startTime > longestTap || touch.tapCount % required != 0)
            fail();
        else
            changeState(State::ended);
    }

    unsigned long numberOfTapsRequired = 1;

private:
    CGPoint m_start;
    double m_startTime = 0;
};

}

static const StandInClass uiTapGestureRecognizer(
    "UITapGestureRecognizer", "UIGestureRecognizer", [](Binder<UITapGestureRecognizer>& binder) {
        using Recognizer = UITapGestureRecognizer;
        binder.property<"numberOfTapsRequired", "setNumberOfTapsRequired:", &Recognizer::numberOfTapsRequired>().add();
    });

}
