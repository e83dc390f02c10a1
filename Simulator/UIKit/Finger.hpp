// The one finger that touches the phone: it finds what lies under it, and tells recognisers and view of its way.
#pragma once

#include "Platform/UIKit/UIGestureRecognizer.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

#include <vector>

namespace Simulator {

struct UIGestureRecognizer;
struct UITouch;

class Finger {
public:
    static Finger& shared();

    bool isDown() const { return static_cast<bool>(m_touch); }
    /// Points are the window's. A finger that is down already is lifted from where it was, without effect, first.
    void down(UIWindow& window, CGPoint point);
    void move(CGPoint point);
    void up(CGPoint point);
    /// The system takes the touch away.
    void cancel();

    /// A gesture was recognised: the others that could still come of the touch fail, and the view loses the touch if
    /// the recogniser wants it so.
    void recognized(UIGestureRecognizer& winner);

private:
    UITouch& touch();
    void place(CGPoint point);
    void countTaps(CGPoint point);
    void collectRecognizers();
    template <ObjC::FixedString message>
    void tellRecognizers();
    template <ObjC::FixedString message>
    void tellView();
    void lift();

    NS::Object m_touch;
    NS::Object m_touches;
    NS::Object m_event;
    /// Those of the view under the finger first, then of the views around it.
    std::vector<UI::GestureRecognizer> m_recognizers;
    bool m_viewHasTouch = false;
    /// Where and when the last tap ended, to count the next one with it.
    CGPoint m_lastTap;
    double m_lastTapTime = -1;
    unsigned long m_lastTapCount = 0;
};

}
