// Places of a touch in each view's own coordinates.
#include "Simulator/UIKit/UITouch.hpp"

#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

static CGPoint converted(CGPoint point, const UI::View& window, const UI::View& view)
{
    const auto* target = standInOrNull<UIView>(view);
    return target ? target->convertPointFromView(point, window) : point;
}

CGPoint UITouch::locationInView(const UI::View& target) const
{
    return converted(location, window, target);
}

CGPoint UITouch::previousLocationInView(const UI::View& target) const
{
    return converted(previousLocation, window, target);
}

UITouch* touchOf(const NS::Object& touches)
{
    return standInOrNull<UITouch>(touches.send<ObjC::Object, "anyObject">());
}

static const StandInClass uiTouch("UITouch", "NSObject", [](Binder<UITouch>& binder) {
    binder.def<"locationInView:", &UITouch::locationInView>()
        .def<"previousLocationInView:", &UITouch::previousLocationInView>()
        .readonly<"phase", &UITouch::phase>()
        .readonly<"timestamp", &UITouch::timestamp>()
        .readonly<"tapCount", &UITouch::tapCount>()
        .readonly<"view", &UITouch::view>()
        .readonly<"window", &UITouch::window>()
        .add();
});

static const StandInClass uiEvent("UIEvent", "NSObject", [](Binder<UIEvent>& binder) {
    binder.readonly<"allTouches", &UIEvent::allTouches>().readonly<"timestamp", &UIEvent::timestamp>().add();
});

}
