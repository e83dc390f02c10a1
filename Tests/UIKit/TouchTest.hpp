// The fixture of what is touched: a window, a virtual clock, a finger, and somebody who notes what is sent to it.
#pragma once

#include "UIKitTest.hpp"

#include "Platform/ObjC/Method.hpp"
#include "Platform/UIKit/UIControl.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/Finger.hpp"

#include <string>
#include <vector>

namespace Simulator {

using Calls = std::vector<std::string>;

class TouchTest : public UIKitTest {
protected:
    TouchTest()
    {
        setUpSymbols(LYR_SYMBOLS);
        calls().clear();
        window = makeWindow();
        listener = makeListener();
    }

    /// What the listener was sent since the last call.
    static Calls takeCalls() { return std::exchange(calls(), {}); }

    void add(const UI::View& view) const { window.addSubview(view); }
    void listen(const UI::Control& control, UI::ControlEvents events = UI::ControlEvents::valueChanged) const
    {
        control.addTarget(listener, ObjC::selector<"heard:">(), events);
    }

    void down(double x, double y) const { Finger::shared().down(windowOf(window), {x, y}); }
    static void move(double x, double y) { Finger::shared().move({x, y}); }
    static void up(double x, double y) { Finger::shared().up({x, y}); }
    void tap(double x, double y) const
    {
        down(x, y);
        up(x, y);
    }
    /// In ten steps that take the seconds together.
    void drag(CGPoint from, CGPoint to, double seconds = 0.2) const
    {
        constexpr int steps = 10;
        down(from.x, from.y);
        for (int i = 1; i <= steps; ++i) {
            advance(seconds / steps);
            move(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps);
        }
        up(to.x, to.y);
    }
    static void advance(double seconds) { Loop::shared().advance(seconds); }
    void layOut() const { layoutTree(viewOf(window)); }

    UI::View window;
    ObjC::Object listener;

private:
    static Calls& calls()
    {
        static Calls noted;
        return noted;
    }
    /// Notes a control as whether a finger is on it, a recogniser as its state.
    static void heard(ObjC::Object, SEL, const ObjC::Object& sender)
    {
        const std::string name = class_getName(object_getClass(sender.raw()));
        if (sender.is<UI::Control>())
            calls().push_back(name + (UI::Control(sender.raw()).isTracking() ? " tracking" : ""));
        else
            calls().push_back(name + " " + std::to_string(sender.send<long, "state">()));
    }
    static void heardAgain(ObjC::Object, SEL) { calls().emplace_back("again"); }
    static void heardEvent(ObjC::Object, SEL, const ObjC::Object&, const ObjC::Object&)
    {
        calls().emplace_back("both");
    }
    static ObjC::Object makeListener()
    {
        static Class made = ObjC::ClassBuilder("TouchListener", objc_getClass("NSObject"))
                                .method<"heard:", &heard>()
                                .method<"heardAgain", &heardAgain>()
                                .method<"heard:event:", &heardEvent>()
                                .build();
        const id allocated = ObjC::sendMessage<id>(reinterpret_cast<id>(made), ObjC::selector<"alloc">());
        return ObjC::Object::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
    }
};

}
