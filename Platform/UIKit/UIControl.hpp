// What is operated with a finger: targets, events and states.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

enum class ControlEvents : unsigned long {
    touchDown = 1 << 0,
    touchDownRepeat = 1 << 1,
    touchDragInside = 1 << 2,
    touchDragOutside = 1 << 3,
    touchDragEnter = 1 << 4,
    touchDragExit = 1 << 5,
    touchUpInside = 1 << 6,
    touchUpOutside = 1 << 7,
    touchCancel = 1 << 8,
    valueChanged = 1 << 12,
    primaryActionTriggered = 1 << 13,
    allEvents = 0xffffffff
};
constexpr ControlEvents operator|(ControlEvents left, ControlEvents right)
{
    return static_cast<ControlEvents>(static_cast<unsigned long>(left) | static_cast<unsigned long>(right));
}

enum class ControlState : unsigned long { normal = 0, highlighted = 1 << 0, disabled = 1 << 1, selected = 1 << 2 };

class Control : public ObjC::Class_<Control, View, "UIControl"> {
public:
    using Class_::Class_;

    /// Sends `action` to the target, with the control as its argument, at each of these events. The target is not kept.
    void addTarget(const ObjC::Object& target, SEL action, ControlEvents events) const
    {
        send<void, "addTarget:action:forControlEvents:">(target, action, events);
    }
    void removeTarget(const ObjC::Object& target, SEL action, ControlEvents events) const
    {
        send<void, "removeTarget:action:forControlEvents:">(target, action, events);
    }
    /// The names of what it sends to the target at the event.
    NS::Array actionsForTarget(const ObjC::Object& target, ControlEvents event) const
    {
        return send<NS::Array, "actionsForTarget:forControlEvent:">(target, event);
    }
    void sendActionsForControlEvents(ControlEvents events) const { send<void, "sendActionsForControlEvents:">(events); }
    bool isEnabled() const { return send<bool, "isEnabled">(); }
    void setEnabled(bool enabled) const { send<void, "setEnabled:">(enabled); }
    bool isSelected() const { return send<bool, "isSelected">(); }
    void setSelected(bool selected) const { send<void, "setSelected:">(selected); }
    bool isHighlighted() const { return send<bool, "isHighlighted">(); }
    void setHighlighted(bool highlighted) const { send<void, "setHighlighted:">(highlighted); }
    /// While a finger is on it.
    bool isTracking() const { return send<bool, "isTracking">(); }
};

}
