// What makes a gesture of touches: its state, whom it tells, and the view whose touches it watches.
#pragma once

#include "Platform/UIKit/UIGestureRecognizer.hpp"
#include "Simulator/UIKit/ActionTarget.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <functional>
#include <vector>

namespace Simulator {

struct UIView;

struct UIGestureRecognizer : StandIn {
    using Root = UIGestureRecognizer;
    using State = UI::GestureRecognizerState;

    /// What kinds of recognisers do with the touch; the messages come here. The base follows where the finger is.
    virtual void began(const UITouch&) { }
    virtual void moved(const UITouch&) { }
    virtual void ended(const UITouch&) { }

    void init() { }
    void initWithTarget(const ObjC::Object& target, SEL action);
    void addTarget(const ObjC::Object& target, SEL action);
    void removeTarget(const ObjC::Object& target, SEL action);
    UI::View view() const;
    CGPoint locationInView(const UI::View& view) const;
    void setEnabled(bool enabled);
    NS::Object delegate() const { return NS::Object(m_delegate); }
    void setDelegate(const NS::Object& delegate) { m_delegate = delegate.raw(); }
    /// Whether its delegate lets it have the touch; without one it may.
    bool mayReceive(const NS::Object& touch) const;

    void touchesBegan(const NS::Object& touches, const NS::Object& event);
    void touchesMoved(const NS::Object& touches, const NS::Object& event);
    void touchesEnded(const NS::Object& touches, const NS::Object& event);
    void touchesCancelled(const NS::Object& touches, const NS::Object& event);
    /// The finger is gone: ready for the next one.
    virtual void reset() { state = State::possible; }

    /// Changes the state; everything but a failure is told to the targets.
    void changeState(State next);
    /// No gesture comes of this touch.
    void fail();
    /// Whether the touch still means something to it.
    bool isInterested() const { return state == State::possible || state == State::began || state == State::changed; }

    /// What the stock shell does at a change, for which it has no message of a known name.
    std::function<void(State)> stockAction;
    State state = State::possible;
    bool enabled = true;
    bool cancelsTouchesInView = true;
    /// Not retained: the view keeps its recognisers.
    UIView* viewReference = nullptr;

private:
    void follow(const UITouch& touch);

    std::vector<ActionTarget> m_targets;
    CGPoint m_location;
    UI::View m_window;
    /// Not retained.
    id m_delegate = nullptr;
};

}
