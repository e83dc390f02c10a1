// A finger on a picker: it turns a wheel, lets it go, or taps on a row; and what is told when the wheel rests.
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIPickerView.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <cmath>

namespace Simulator {

/// A finger that moves less only taps.
static constexpr double leastDrag = 4;

void UIPickerView::chosen(long row, long component)
{
    const auto kept = self();
    const ObjC::Object told = delegate();
    if (told.respondsTo<"pickerView:didSelectRow:inComponent:">())
        told.send<void, "pickerView:didSelectRow:inComponent:">(kept, row, component);
}

void UIPickerView::choose(long row)
{
    selectRow(row, 0, false);
    chosen(row, 0);
}

/// The rows only show; the wheel takes every touch.
UI::View UIPickerView::hitTest(CGPoint point, const NS::Object& event) const
{
    return UIView::hitTest(point, event) ? self<UI::View>() : UI::View();
}

void UIPickerView::touchesBegan(const NS::Object& touches, const NS::Object&)
{
    m_touchStart = touchOf(touches)->locationInView(self<UI::View>());
    m_isDragging = false;
    m_heldComponent = -1;
    for (long i = 0; i < numberOfComponents(); ++i) {
        if (m_touchStart.x < frameOf(i).right() || i + 1 == numberOfComponents()) {
            m_heldComponent = i;
            m_wheels[i]->hold();
            break;
        }
    }
}

void UIPickerView::touchesMoved(const NS::Object& touches, const NS::Object&)
{
    PickerWheel* wheel = wheelAt(m_heldComponent);
    if (!wheel)
        return;
    const UITouch& touch = *touchOf(touches);
    const auto view = self<UI::View>();
    const CGPoint point = touch.locationInView(view);
    const bool begins = !m_isDragging && std::abs(point.y - m_touchStart.y) >= leastDrag;
    m_isDragging |= begins;
    if (m_isDragging) {
        const double from = begins ? m_touchStart.y : touch.previousLocationInView(view).y;
        wheel->drag((from - point.y) / heightOfRow(m_heldComponent));
    }
}

void UIPickerView::touchesEnded(const NS::Object& touches, const NS::Object& event)
{
    PickerWheel* wheel = wheelAt(m_heldComponent);
    if (!wheel)
        return;
    UITouch& touch = *touchOf(touches);
    if (touch.location != touch.previousLocation)
        touchesMoved(touches, event);
    const long component = std::exchange(m_heldComponent, -1);
    const double y = touch.locationInView(self<UI::View>()).y;
    const double below = (y - frameOf(component).center().y) / heightOfRow(component);
    if (m_isDragging)
        wheel->release();
    else
        wheel->tap(std::lround(below));
}

void UIPickerView::touchesCancelled(const NS::Object&, const NS::Object&)
{
    if (PickerWheel* wheel = wheelAt(std::exchange(m_heldComponent, -1)))
        wheel->select(wheel->selectedRow(), true);
}

}
