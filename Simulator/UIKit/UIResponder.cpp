// The responder chain: touches go up it. Nobody is first responder: the lock screen takes no text.
#include "Simulator/UIKit/UIResponder.hpp"

#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

void UIResponder::touchesBegan(const NS::Object& touches, const NS::Object& event)
{
    self().send<UI::Responder, "nextResponder">().send<void, "touchesBegan:withEvent:">(touches, event);
}

void UIResponder::touchesMoved(const NS::Object& touches, const NS::Object& event)
{
    self().send<UI::Responder, "nextResponder">().send<void, "touchesMoved:withEvent:">(touches, event);
}

void UIResponder::touchesEnded(const NS::Object& touches, const NS::Object& event)
{
    self().send<UI::Responder, "nextResponder">().send<void, "touchesEnded:withEvent:">(touches, event);
}

void UIResponder::touchesCancelled(const NS::Object& touches, const NS::Object& event)
{
    self().send<UI::Responder, "nextResponder">().send<void, "touchesCancelled:withEvent:">(touches, event);
}

static const StandInClass uiResponder("UIResponder", "NSObject", [](Binder<UIResponder>& binder) {
    binder.def<"nextResponder", &UIResponder::nextResponder>()
        .def<"touchesBegan:withEvent:", &UIResponder::touchesBegan>()
        .def<"touchesMoved:withEvent:", &UIResponder::touchesMoved>()
        .def<"touchesEnded:withEvent:", &UIResponder::touchesEnded>()
        .def<"touchesCancelled:withEvent:", &UIResponder::touchesCancelled>()
        .add();
});

}
