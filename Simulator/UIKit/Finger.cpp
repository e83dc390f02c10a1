// A touch from its beginning to its end: taps counted, recognisers told first, then the view.
#include "Simulator/UIKit/Finger.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/UIGestureRecognizer.hpp"
#include "Simulator/UIKit/UITouch.hpp"

#include <cmath>

namespace Simulator {

namespace {

constexpr double longestPauseBetweenTaps = 0.35;
constexpr double greatestDistanceOfTaps = 45;

NS::Object setOf(const ObjC::Object& element)
{
    return ObjC::sendMessage<NS::Object>(
        reinterpret_cast<id>(objc_getClass("NSSet")), ObjC::selector<"setWithObject:">(), element);
}

}

Finger& Finger::shared()
{
    return Phone::part<Finger>();
}

UITouch& Finger::touch()
{
    return standIn<UITouch>(m_touch.raw());
}

void Finger::place(CGPoint point)
{
    UITouch& moved = touch();
    moved.previousLocation = std::exchange(moved.location, point);
    moved.timestamp = Loop::shared().uptime();
    standIn<UIEvent>(m_event.raw()).timestamp = moved.timestamp;
}

void Finger::countTaps(CGPoint point)
{
    const bool isNext = m_lastTapTime >= 0 && Loop::shared().uptime() - m_lastTapTime <= longestPauseBetweenTaps
        && std::hypot(point.x - m_lastTap.x, point.y - m_lastTap.y) <= greatestDistanceOfTaps;
    touch().tapCount = isNext ? m_lastTapCount + 1 : 1;
}

void Finger::collectRecognizers()
{
    m_recognizers.clear();
    for (const UIView* view = standInOrNull<UIView>(touch().view); view; view = view->parent) {
        for (const UI::GestureRecognizer& recognizer : view->recognizers) {
            if (recognizer.isEnabled() && standIn<UIGestureRecognizer>(recognizer.raw()).mayReceive(m_touch))
                m_recognizers.push_back(recognizer);
        }
    }
}

template <ObjC::FixedString message>
void Finger::tellRecognizers()
{
    const NS::Object touches = m_touches, event = m_event;
    for (const UI::GestureRecognizer& recognizer : std::vector(m_recognizers)) {
        // It may have been taken away meanwhile; one that failed or is done waits for the next touch.
        auto& told = standIn<UIGestureRecognizer>(recognizer.raw());
        if (told.viewReference && told.enabled && told.isInterested())
            recognizer.send<void, message>(touches, event);
    }
}

template <ObjC::FixedString message>
void Finger::tellView()
{
    if (!m_viewHasTouch)
        return;
    const UI::View view = touch().view;
    view.send<void, message>(m_touches, m_event);
}

void Finger::down(UIWindow& window, CGPoint point)
{
    cancel();
    m_touch = newInstance("UITouch");
    m_touches = setOf(m_touch);
    m_event = newInstance("UIEvent");
    standIn<UIEvent>(m_event.raw()).allTouches = m_touches;
    UITouch& begun = touch();
    begun.window = window.self<UI::View>();
    place(point);
    begun.previousLocation = point;
    countTaps(point);
    begun.view = begun.window.send<UI::View, "hitTest:withEvent:">(point, m_event);
    m_viewHasTouch = static_cast<bool>(begun.view);
    collectRecognizers();
    tellRecognizers<"touchesBegan:withEvent:">();
    tellView<"touchesBegan:withEvent:">();
}

void Finger::move(CGPoint point)
{
    if (!isDown())
        return;
    place(point);
    touch().phase = TouchPhase::moved;
    tellRecognizers<"touchesMoved:withEvent:">();
    tellView<"touchesMoved:withEvent:">();
}

void Finger::up(CGPoint point)
{
    if (!isDown())
        return;
    place(point);
    touch().phase = TouchPhase::ended;
    m_lastTap = point;
    m_lastTapTime = touch().timestamp;
    m_lastTapCount = touch().tapCount;
    tellRecognizers<"touchesEnded:withEvent:">();
    tellView<"touchesEnded:withEvent:">();
    lift();
}

void Finger::cancel()
{
    if (!isDown())
        return;
    touch().phase = TouchPhase::cancelled;
    tellRecognizers<"touchesCancelled:withEvent:">();
    tellView<"touchesCancelled:withEvent:">();
    lift();
}

void Finger::lift()
{
    const auto recognizers = std::exchange(m_recognizers, {});
    for (const UI::GestureRecognizer& recognizer : recognizers)
        recognizer.send<void, "reset">();
    m_viewHasTouch = false;
    m_touch = m_touches = m_event = {};
}

void Finger::recognized(UIGestureRecognizer& winner)
{
    if (!isDown())
        return;
    for (const UI::GestureRecognizer& recognizer : m_recognizers) {
        auto& other = standIn<UIGestureRecognizer>(recognizer.raw());
        if (&other != &winner)
            other.fail();
    }
    if (!winner.cancelsTouchesInView)
        return;
    tellView<"touchesCancelled:withEvent:">();
    m_viewHasTouch = false;
}

}
