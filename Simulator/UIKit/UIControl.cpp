// Tracking, and the events that are sent for it.
#include "Simulator/UIKit/UIControl.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UITouch.hpp"

namespace Simulator {

namespace {

/// A finger that has slipped off counts as inside as far as this.
constexpr double slip = 70;
constexpr double disabledOpacity = 0.5;

}

void UIControl::decorate(Graphics::Layer& layer) const
{
    if (!enabled)
        layer.opacity *= disabledOpacity;
}

void UIControl::addTarget(const ObjC::Object& target, SEL action, unsigned long events)
{
    if (!action)
        return;
    const ActionTarget added{target.raw(), action};
    for (Registration& registration : m_registrations) {
        if (registration.target == added) {
            registration.events |= events;
            return;
        }
    }
    m_registrations.push_back({added, events});
}

void UIControl::removeTarget(const ObjC::Object& target, SEL action, unsigned long events)
{
    for (Registration& registration : m_registrations) {
        const bool isMeant = (!target || registration.target.target == target.raw())
            && (!action || registration.target.action == action);
        if (isMeant)
            registration.events &= ~events;
    }
    std::erase_if(m_registrations, [](const Registration& registration) { return registration.events == 0; });
}

NS::Array UIControl::actionsForTarget(const ObjC::Object& target, unsigned long event) const
{
    auto names = NS::MutableArray::make();
    for (const Registration& registration : m_registrations) {
        if (registration.target.target == target.raw() && (registration.events & event))
            names.addObject(NS::String::fromUTF8(sel_getName(registration.target.action)));
    }
    return names;
}

void UIControl::sendActionsForControlEvents(unsigned long events)
{
    const auto kept = self();
    for (const Registration& registration : std::vector(m_registrations)) {
        if (registration.events & events)
            kept.send<void, "sendAction:to:forEvent:">(
                registration.target.action, ObjC::Object(registration.target.target), NS::Object());
    }
}

void UIControl::sendActionTo(SEL action, const ObjC::Object& target, const NS::Object& event)
{
    sendAction({target.raw(), action}, self(), event);
}

void UIControl::send(Events events)
{
    self<UI::Control>().sendActionsForControlEvents(events);
}

void UIControl::setEnabled(bool isEnabled)
{
    enabled = isEnabled;
    stateChanged();
}

void UIControl::setSelected(bool isSelected)
{
    selected = isSelected;
    stateChanged();
}

void UIControl::setHighlighted(bool isHighlighted)
{
    highlighted = isHighlighted;
    stateChanged();
}

unsigned long UIControl::state() const
{
    using State = UI::ControlState;
    const auto bit = [](bool holds, State state) { return holds ? static_cast<unsigned long>(state) : 0; };
    return bit(highlighted, State::highlighted) | bit(!enabled, State::disabled) | bit(selected, State::selected);
}

bool UIControl::isNear(const NS::Object& touches) const
{
    const UITouch* touch = touchOf(touches);
    if (!touch)
        return false;
    const CGPoint point = touch->locationInView(self<UI::View>());
    const CGSize size = bounds().size;
    return point.x >= -slip && point.y >= -slip && point.x < size.width + slip && point.y < size.height + slip;
}

void UIControl::touchesBegan(const NS::Object& touches, const NS::Object& event)
{
    if (!enabled)
        return;
    const auto control = self<UI::Control>();
    touchInside = true;
    tracking = control.send<bool, "beginTrackingWithTouch:withEvent:">(NS::Object(touchOf(touches)->object()), event);
    if (!tracking)
        return;
    control.setHighlighted(true);
    send(touchOf(touches)->tapCount > 1 ? Events::touchDown | Events::touchDownRepeat : Events::touchDown);
}

void UIControl::touchesMoved(const NS::Object& touches, const NS::Object& event)
{
    if (!tracking)
        return;
    const auto control = self<UI::Control>();
    const bool wasInside = std::exchange(touchInside, isNear(touches));
    tracking
        = control.send<bool, "continueTrackingWithTouch:withEvent:">(NS::Object(touchOf(touches)->object()), event);
    if (highlighted != (touchInside && tracking))
        control.setHighlighted(touchInside && tracking);
    if (touchInside)
        send(wasInside ? Events::touchDragInside : Events::touchDragInside | Events::touchDragEnter);
    else
        send(wasInside ? Events::touchDragOutside | Events::touchDragExit : Events::touchDragOutside);
}

void UIControl::touchesEnded(const NS::Object& touches, const NS::Object& event)
{
    if (!tracking)
        return;
    const auto control = self<UI::Control>();
    touchInside = isNear(touches);
    // The finger is off the control when it tells so.
    tracking = false;
    control.send<void, "endTrackingWithTouch:withEvent:">(NS::Object(touchOf(touches)->object()), event);
    control.setHighlighted(false);
    send(touchInside ? Events::touchUpInside | Events::primaryActionTriggered : Events::touchUpOutside);
}

void UIControl::touchesCancelled(const NS::Object&, const NS::Object& event)
{
    if (!tracking)
        return;
    const auto control = self<UI::Control>();
    tracking = false;
    control.send<void, "cancelTrackingWithEvent:">(event);
    control.setHighlighted(false);
    send(Events::touchCancel);
}

static const StandInClass uiControl("UIControl", "UIView", [](Binder<UIControl>& binder) {
    using Control = UIControl;
    binder.def<"addTarget:action:forControlEvents:", &Control::addTarget>()
        .def<"removeTarget:action:forControlEvents:", &Control::removeTarget>()
        .def<"actionsForTarget:forControlEvent:", &Control::actionsForTarget>()
        .def<"sendActionsForControlEvents:", &Control::sendActionsForControlEvents>()
        .def<"sendAction:to:forEvent:", &Control::sendActionTo>()
        .readonly<"isEnabled", &Control::enabled>()
        .def<"setEnabled:", &Control::setEnabled>()
        .readonly<"isSelected", &Control::selected>()
        .def<"setSelected:", &Control::setSelected>()
        .readonly<"isHighlighted", &Control::highlighted>()
        .def<"setHighlighted:", &Control::setHighlighted>()
        .def<"state", &Control::state>()
        .readonly<"isTracking", &Control::tracking>()
        .readonly<"isTouchInside", &Control::touchInside>()
        .def<"touchesBegan:withEvent:", &Control::touchesBegan>()
        .def<"touchesMoved:withEvent:", &Control::touchesMoved>()
        .def<"touchesEnded:withEvent:", &Control::touchesEnded>()
        .def<"touchesCancelled:withEvent:", &Control::touchesCancelled>()
        .def<"beginTrackingWithTouch:withEvent:", &Control::beginTracking>()
        .def<"continueTrackingWithTouch:withEvent:", &Control::continueTracking>()
        .def<"endTrackingWithTouch:withEvent:", &Control::endTracking>()
        .def<"cancelTrackingWithEvent:", &Control::cancelTracking>()
        .add();
});

}
