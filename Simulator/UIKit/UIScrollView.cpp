// Offsets and insets, and the finger that changes them.
#include "Simulator/UIKit/UIScrollView.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include <algorithm>

namespace Simulator {

void UIScrollView::addParts()
{
    const auto pan = UI::GestureRecognizer(newInstance("UIPanGestureRecognizer").raw());
    standIn<UIGestureRecognizer>(pan.raw()).stockAction
        = [this, finger = pan.raw()](UI::GestureRecognizerState) { followFinger(UI::GestureRecognizer(finger)); };
    self<UI::View>().addGestureRecognizer(pan);
}

void UIScrollView::followFinger(const UI::GestureRecognizer& finger)
{
    const double y = finger.locationInView(self<UI::View>()).y;
    if (finger.state() == UI::GestureRecognizerState::changed)
        self().send<void, "setContentOffset:">(
            CGPoint{contentOffset.x, std::max(0.0, contentOffset.y - (y - m_fingerBefore))});
    m_fingerBefore = y;
}

void UIScrollView::setContentInset(UIEdgeInsets inset)
{
    contentInset = inset;
    setNeedsLayout();
}

void UIScrollView::setContentOffset(CGPoint offset)
{
    contentOffset = offset;
    setNeedsLayout();
}

static const StandInClass uiScrollView("UIScrollView", "UIView", [](Binder<UIScrollView>& binder) {
    binder.readonly<"contentInset", &UIScrollView::contentInset>()
        .def<"setContentInset:", &UIScrollView::setContentInset>()
        .readonly<"contentOffset", &UIScrollView::contentOffset>()
        .def<"setContentOffset:", &UIScrollView::setContentOffset>()
        .property<"contentSize", "setContentSize:", &UIScrollView::contentSize>()
        .add();
});

}
