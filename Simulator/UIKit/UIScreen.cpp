// The screen and the traits of what it shows.
#include "Simulator/UIKit/UIScreen.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

namespace Simulator {

namespace {

NS::Object makeTraits(InterfaceStyle style)
{
    const ObjC::Object traits = ObjC::Object::adopting(ObjC::sendMessage<id>(
        ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass("UITraitCollection")), ObjC::selector<"alloc">()),
        ObjC::selector<"init">()));
    auto& standing = standIn<UITraitCollection>(traits.raw());
    standing.style = static_cast<UserInterfaceStyle>(style);
    standing.displayScale = screenSettings().scale;
    return traits;
}

/// The controller hears of the change before its view, the view before its subviews.
void announceTraits(const UI::View& object, const NS::Object& previous)
{
    auto& view = standIn<UIView>(object.raw());
    if (view.controller)
        view.controller->self().send<void, "traitCollectionDidChange:">(previous);
    object.send<void, "traitCollectionDidChange:">(previous);
    for (const UI::View& child : std::vector(view.children))
        announceTraits(child, previous);
}

}

NS::Object currentTraits()
{
    return makeTraits(DeviceState::shared().style);
}

void changeInterfaceStyle(UIWindow& window, InterfaceStyle style)
{
    DeviceState::shared().style = style;
    if (window.announcedStyle == style)
        return;
    const NS::Object previous = makeTraits(window.announcedStyle);
    window.announcedStyle = style;
    announceTraits(window.self<UI::View>(), previous);
}

CGRect UIScreen::bounds() const
{
    return {{}, screenSettings().size};
}

double UIScreen::scale() const
{
    return screenSettings().scale;
}

static const StandInClass uiTraitCollection("UITraitCollection", "NSObject", [](Binder<UITraitCollection>& binder) {
    binder.classMethod<"currentTraitCollection", &currentTraits>()
        .readonly<"userInterfaceStyle", &UITraitCollection::style>()
        .readonly<"displayScale", &UITraitCollection::displayScale>()
        .add();
});

static const StandInClass uiScreen("UIScreen", "NSObject", [](Binder<UIScreen>& binder) {
    binder.classMethod<"mainScreen", &sharedObject<UI::Screen>>()
        .def<"bounds", &UIScreen::bounds>()
        .def<"scale", &UIScreen::scale>()
        .def<"traitCollection", &UIScreen::traitCollection>()
        .add();
});

}
