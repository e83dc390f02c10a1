// Targets, states and touches that all recognisers have in common.
#include "Simulator/UIKit/UIGestureRecognizer.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/Finger.hpp"

#include <algorithm>

namespace Simulator {

void UIGestureRecognizer::initWithTarget(const ObjC::Object& target, SEL action)
{
    addTarget(target, action);
}

void UIGestureRecognizer::addTarget(const ObjC::Object& target, SEL action)
{
    const ActionTarget added{target.raw(), action};
    if (action && std::ranges::find(m_targets, added) == m_targets.end())
        m_targets.push_back(added);
}

void UIGestureRecognizer::removeTarget(const ObjC::Object& target, SEL action)
{
    std::erase_if(m_targets, [&](const ActionTarget& present) {
        return (!target || present.target == target.raw()) && (!action || present.action == action);
    });
}

UI::View UIGestureRecognizer::view() const
{
    return viewReference ? viewReference->self<UI::View>() : UI::View();
}

CGPoint UIGestureRecognizer::locationInView(const UI::View& view) const
{
    const auto* target = standInOrNull<UIView>(view);
    return target ? target->convertPointFromView(m_location, m_window) : m_location;
}

void UIGestureRecognizer::setEnabled(bool wanted)
{
    enabled = wanted;
    if (!enabled && (state == State::began || state == State::changed))
        changeState(State::cancelled);
    else if (!enabled)
        reset();
}

bool UIGestureRecognizer::mayReceive(const NS::Object& touch) const
{
    const NS::Object asked = delegate();
    if (!asked.respondsTo<"gestureRecognizer:shouldReceiveTouch:">())
        return true;
    return asked.send<bool, "gestureRecognizer:shouldReceiveTouch:">(self(), touch);
}

void UIGestureRecognizer::follow(const UITouch& touch)
{
    m_location = touch.location;
    m_window = touch.window;
}

void UIGestureRecognizer::touchesBegan(const NS::Object& touches, const NS::Object&)
{
    if (const UITouch* touch = touchOf(touches)) {
        follow(*touch);
        began(*touch);
    }
}

void UIGestureRecognizer::touchesMoved(const NS::Object& touches, const NS::Object&)
{
    if (const UITouch* touch = touchOf(touches)) {
        follow(*touch);
        moved(*touch);
    }
}

void UIGestureRecognizer::touchesEnded(const NS::Object& touches, const NS::Object&)
{
    if (const UITouch* touch = touchOf(touches)) {
        follow(*touch);
        ended(*touch);
    }
}

void UIGestureRecognizer::touchesCancelled(const NS::Object&, const NS::Object&)
{
    if (state == State::possible)
        fail();
    else
        changeState(State::cancelled);
}

void UIGestureRecognizer::changeState(State next)
{
    const bool isFirst = state == State::possible;
    state = next;
    // A target may take the recogniser away and let it go.
    const auto kept = self();
    if (isFirst)
        Finger::shared().recognized(*this);
    if (stockAction)
        stockAction(next);
    for (const ActionTarget& target : std::vector(m_targets))
        sendAction(target, kept, {});
}

void UIGestureRecognizer::fail()
{
    if (state == State::possible)
        state = State::failed;
}

static const StandInClass uiGestureRecognizer(
    "UIGestureRecognizer", "NSObject", [](Binder<UIGestureRecognizer>& binder) {
        using Recognizer = UIGestureRecognizer;
        binder.init<"init", &Recognizer::init>()
            .init<"initWithTarget:action:", &Recognizer::initWithTarget>()
            .def<"addTarget:action:", &Recognizer::addTarget>()
            .def<"removeTarget:action:", &Recognizer::removeTarget>()
            .readonly<"state", &Recognizer::state>()
            .def<"view", &Recognizer::view>()
            .def<"locationInView:", &Recognizer::locationInView>()
            .readonly<"isEnabled", &Recognizer::enabled>()
            .def<"setEnabled:", &Recognizer::setEnabled>()
            .def<"delegate", &Recognizer::delegate>()
            .def<"setDelegate:", &Recognizer::setDelegate>()
            .property<"cancelsTouchesInView", "setCancelsTouchesInView:", &Recognizer::cancelsTouchesInView>()
            .def<"touchesBegan:withEvent:", &Recognizer::touchesBegan>()
            .def<"touchesMoved:withEvent:", &Recognizer::touchesMoved>()
            .def<"touchesEnded:withEvent:", &Recognizer::touchesEnded>()
            .def<"touchesCancelled:withEvent:", &Recognizer::touchesCancelled>()
            .def<"reset", &Recognizer::reset>()
            .add();
    });

}
