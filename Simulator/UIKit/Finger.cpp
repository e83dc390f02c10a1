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
    return standIn<UITouch>(touch_.raw());
}

void Finger::place(CGPoint point)
{
    UITouch& moved = touch();
    moved.previousLocation = std::exchange(moved.location, point);
    moved.timestamp = Loop::shared().uptime();
    standIn<UIEvent>(event_.raw()).timestamp = moved.timestamp;
}

void Finger::countTaps(CGPoint point)
{
    const bool isNext = lastTapTime_ >= 0 && Loop::shared().uptime() - lastTapTime_ <= longestPauseBetweenTaps
        && std::hypot(point.x - lastTap_.x, point.y - lastTap_.y) <= greatestDistanceOfTaps;
    touch().tapCount = isNext ? lastTapCount_ + 1 : 1;
}

void Finger::collectRecognizers()
{
    recognizers_.clear();
    for (const UIView* view = standInOrNull<UIView>(touch().view); view; view = view->parent) {
        for (const UI::GestureRecognizer& recognizer : view->recognizers) {
            if (recognizer.isEnabled())
                recognizers_.push_back(recognizer);
        }
    }
}

template <ObjC::FixedString message>
void Finger::tellRecognizers()
{
    const NS::Object touches = touches_, event = event_;
    for (const UI::GestureRecognizer& recognizer : std::vector(recognizers_)) {
        // It may have been taken away meanwhile; one that failed or is done waits for the next touch.
        auto& told = standIn<UIGestureRecognizer>(recognizer.raw());
        if (told.viewReference && told.enabled && told.isInterested())
            recognizer.send<void, message>(touches, event);
    }
}

template <ObjC::FixedString message>
void Finger::tellView()
{
    if (!viewHasTouch_)
        return;
    const UI::View view = touch().view;
    view.send<void, message>(touches_, event_);
}

void Finger::down(UIWindow& window, CGPoint point)
{
    cancel();
    touch_ = newInstance("UITouch");
    touches_ = setOf(touch_);
    event_ = newInstance("UIEvent");
    standIn<UIEvent>(event_.raw()).allTouches = touches_;
    UITouch& begun = touch();
    begun.window = window.self<UI::View>();
    place(point);
    begun.previousLocation = point;
    countTaps(point);
    begun.view = begun.window.send<UI::View, "hitTest:withEvent:">(point, event_);
    viewHasTouch_ = static_cast<bool>(begun.view);
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
    lastTap_ = point;
    lastTapTime_ = touch().timestamp;
    lastTapCount_ = touch().tapCount;
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
    const auto recognizers = std::exchange(recognizers_, {});
    for (const UI::GestureRecognizer& recognizer : recognizers)
        recognizer.send<void, "reset">();
    viewHasTouch_ = false;
    touch_ = touches_ = event_ = {};
}

void Finger::recognized(UIGestureRecognizer& winner)
{
    if (!isDown())
        return;
    for (const UI::GestureRecognizer& recognizer : recognizers_) {
        auto& other = standIn<UIGestureRecognizer>(recognizer.raw());
        if (&other != &winner)
            other.fail();
    }
    if (!winner.cancelsTouchesInView)
        return;
    tellView<"touchesCancelled:withEvent:">();
    viewHasTouch_ = false;
}

}
