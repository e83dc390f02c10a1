// What makes a gesture of the touches in a view and in the views inside it.
#pragma once

#include "Platform/UIKit/UIView.hpp"

namespace UI {

enum class GestureRecognizerState : long { possible = 0, began = 1, changed = 2, ended = 3, cancelled = 4, failed = 5 };

/// A finger on the screen.
class Touch : public ObjC::Class_<Touch, NS::Object, "UITouch"> {
public:
    using Class_::Class_;
    /// The view that it came down in.
    View view() const { return send<View, "view">(); }
};

class GestureRecognizer : public ObjC::Class_<GestureRecognizer, NS::Object, "UIGestureRecognizer"> {
public:
    using Class_::Class_;

    /// Sends `action` to the target, with the recogniser as its argument, when the state changes. The target is not
    /// kept.
    void addTarget(const ObjC::Object& target, SEL action) const { send<void, "addTarget:action:">(target, action); }
    void removeTarget(const ObjC::Object& target, SEL action) const
    {
        send<void, "removeTarget:action:">(target, action);
    }
    GestureRecognizerState state() const { return send<GestureRecognizerState, "state">(); }
    CGPoint locationInView(const View& view) const { return send<CGPoint, "locationInView:">(view); }
    View view() const { return send<View, "view">(); }
    /// Asked whether a touch counts, among others. Not kept.
    void setDelegate(const ObjC::Object& delegate) const { send<void, "setDelegate:">(delegate); }
    bool isEnabled() const { return send<bool, "isEnabled">(); }
    void setEnabled(bool enabled) const { send<void, "setEnabled:">(enabled); }
    /// Whether the view loses its touches once the gesture is recognised.
    void setCancelsTouchesInView(bool cancels) const { send<void, "setCancelsTouchesInView:">(cancels); }
};

class TapGestureRecognizer : public ObjC::Class_<TapGestureRecognizer, GestureRecognizer, "UITapGestureRecognizer"> {
public:
    using Class_::Class_;

    static TapGestureRecognizer withTarget(const ObjC::Object& target, SEL action)
    {
        return make<"initWithTarget:action:">(target, action);
    }
    void setNumberOfTapsRequired(unsigned long taps) const { send<void, "setNumberOfTapsRequired:">(taps); }
};

class LongPressGestureRecognizer
    : public ObjC::Class_<LongPressGestureRecognizer, GestureRecognizer, "UILongPressGestureRecognizer"> {
public:
    using Class_::Class_;

    static LongPressGestureRecognizer withTarget(const ObjC::Object& target, SEL action)
    {
        return make<"initWithTarget:action:">(target, action);
    }
    /// Half a second unless set.
    double minimumPressDuration() const { return send<double, "minimumPressDuration">(); }
    void setMinimumPressDuration(double seconds) const { send<void, "setMinimumPressDuration:">(seconds); }
    /// How far the finger may move before the press is recognised; ten points unless set.
    CGFloat allowableMovement() const { return send<CGFloat, "allowableMovement">(); }
    void setAllowableMovement(CGFloat points) const { send<void, "setAllowableMovement:">(points); }
};

inline void View::addGestureRecognizer(const GestureRecognizer& recognizer) const
{
    send<void, "addGestureRecognizer:">(recognizer);
}
inline void View::removeGestureRecognizer(const GestureRecognizer& recognizer) const
{
    send<void, "removeGestureRecognizer:">(recognizer);
}

}
