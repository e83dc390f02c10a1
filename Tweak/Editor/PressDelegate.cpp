// Walks from the touched view up to the lock screen's.
#include "Tweak/Editor/PressDelegate.hpp"

#include "Platform/UIKit/UIControl.hpp"
#include "Platform/UIKit/UIScrollView.hpp"
#include "Tweak/State.hpp"

namespace LYR {

namespace {

/// A list is made of scroll views; what is not one lies on it: a notification, a player.
bool shouldReceiveTouch(NS::Object, SEL, UI::GestureRecognizer recognizer, UI::Touch touch)
{
    auto list = _notifVC->scrollView();
    auto watched = recognizer.view();
    bool isOnSomething = false;
    for (auto view = touch.view(); view && !(view == watched); view = view.superview()) {
        if (view.is<UI::Control>())
            return false;
        if (view == list)
            return !isOnSomething;
        isOnSomething |= !view.is<UI::ScrollView>();
    }
    return true;
}

}

PressDelegate PressDelegate::shared()
{
    static constinit ObjC::Variable<PressDelegate> delegate;
    if (!delegate) {
        ObjC::ClassBuilder::of<PressDelegate>(NS::Object::type())
            .method<"gestureRecognizer:shouldReceiveTouch:", &shouldReceiveTouch>()
            .build();
        delegate = make();
    }
    return delegate;
}

}
