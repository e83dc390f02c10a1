// What is operated with a finger: its states, the way of a finger over it, and whom it tells.
#pragma once

#include "Platform/UIKit/UIControl.hpp"
#include "Simulator/UIKit/ActionTarget.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <vector>

namespace Simulator {

struct UIControl : UIView {
    using Events = UI::ControlEvents;

    void decorate(Graphics::Layer& layer) const override;
    /// Something that shows has changed: enabled, selected, highlighted.
    virtual void stateChanged() { }

    void addTarget(const ObjC::Object& target, SEL action, unsigned long events);
    void removeTarget(const ObjC::Object& target, SEL action, unsigned long events);
    NS::Array actionsForTarget(const ObjC::Object& target, unsigned long event) const;
    void sendActionsForControlEvents(unsigned long events);
    void sendActionTo(SEL action, const ObjC::Object& target, const NS::Object& event);

    void setEnabled(bool isEnabled);
    void setSelected(bool isSelected);
    void setHighlighted(bool isHighlighted);
    unsigned long state() const;

    void touchesBegan(const NS::Object& touches, const NS::Object& event);
    void touchesMoved(const NS::Object& touches, const NS::Object& event);
    void touchesEnded(const NS::Object& touches, const NS::Object& event);
    void touchesCancelled(const NS::Object& touches, const NS::Object& event);

    /// Whether the control goes on with the finger; kinds of controls bind their own under the same messages.
    bool beginTracking(const NS::Object&, const NS::Object&) { return true; }
    bool continueTracking(const NS::Object&, const NS::Object&) { return true; }
    void endTracking(const NS::Object&, const NS::Object&) { }
    void cancelTracking(const NS::Object&) { }

    bool enabled = true;
    bool selected = false;
    bool highlighted = false;
    bool tracking = false;
    bool touchInside = false;

protected:
    void send(Events events);

private:
    struct Registration {
        ActionTarget target;
        unsigned long events;
    };
    bool isNear(const NS::Object& touches) const;

    std::vector<Registration> m_registrations;
};

}
