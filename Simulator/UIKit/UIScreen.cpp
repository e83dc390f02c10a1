// The screen and the traits of what it shows.
#include "Simulator/UIKit/UIScreen.hpp"

#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

namespace Simulator {

namespace {

UI::Screen mainScreen()
{
    static constinit ObjC::Variable<UI::Screen> screen;
    if (!screen)
        screen = UI::Screen::make();
    return screen;
}

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

void registerUIScreen()
{
    Binder<UITraitCollection>("UITraitCollection", "NSObject")
        .classMethod<"currentTraitCollection", &currentTraits>()
        .readonly<"userInterfaceStyle", &UITraitCollection::style>()
        .readonly<"displayScale", &UITraitCollection::displayScale>()
        .add();
    Binder<UIScreen>("UIScreen", "NSObject")
        .classMethod<"mainScreen", &mainScreen>()
        .def<"bounds", &UIScreen::bounds>()
        .def<"scale", &UIScreen::scale>()
        .def<"traitCollection", &UIScreen::traitCollection>()
        .add();
}

}
