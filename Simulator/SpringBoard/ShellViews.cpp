// The shell's window and what is in it.
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/CoverSheet.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/StatusBar.hpp"
#include "Simulator/SpringBoard/StockDateText.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

/// Where the user sees the lock screen on the dark screen, it is dimmed.
constexpr double dimmed = 0.6;

/// How one asks classes for their only object.
constexpr const char* onlyObjectSelectors[]
    = {"sharedInstance", "sharedApplication", "sharedManager", "currentDevice", "mainScreen"};

bool matches(const ObjC::Object& object, Class type, bool exactly)
{
    return object && (exactly ? object_getClass(object.raw()) == type : object.isKindOf(type));
}

ObjC::Object findController(const UI::ViewController& controller, Class type, bool exactly)
{
    if (matches(controller, type, exactly))
        return controller;
    for (const UI::ViewController& child : standIn<UIViewController>(controller.raw()).children) {
        if (const ObjC::Object found = findController(child, type, exactly))
            return found;
    }
    return {};
}

ObjC::Object findView(const UI::View& view, Class type, bool exactly)
{
    if (matches(view, type, exactly))
        return view;
    for (const UI::View& child : standIn<UIView>(view.raw()).children) {
        if (const ObjC::Object found = findView(child, type, exactly))
            return found;
    }
    return {};
}

ObjC::Object onlyObject(Class type)
{
    for (const char* name : onlyObjectSelectors) {
        SEL selector = sel_registerName(name);
        if (class_respondsToSelector(object_getClass(reinterpret_cast<id>(type)), selector))
            return ObjC::sendMessage<ObjC::Object>(reinterpret_cast<id>(type), selector);
    }
    return {};
}

}

void Shell::buildWindow()
{
    window_ = makeView("UIWindow", ScreenLayout::current().bounds(), "stock.window");
    window_.setBackgroundColor(UI::Color::blackColor());
    wallpaper_ = makeView("SBFStaticWallpaperView", {}, "stock.wallpaper");
    homeScreen_ = makeController("SBHomeScreenViewController");
    app_ = makeView("UIView", {}, "stock.app");
    app_.setBackgroundColor(UI::Color::whiteColor());
    coverSheet_
        = sharedInstance("SBCoverSheetPresentationManager").send<UI::ViewController, "coverSheetViewController">();
    statusBar_ = makeView("UIStatusBar_Modern", {}, "stock.statusBar");
    homeIndicator_ = makePlate({}, whiteWithAlpha(0.9), 2.5);
    homeIndicator_.setAccessibilityIdentifier("stock.homeIndicator"_ns);
    darkness_ = makeView("UIView", {}, "stock.darkness");
    darkness_.setBackgroundColor(UI::Color::blackColor());
    for (const UI::View& view :
        {wallpaper_, homeScreen_.view(), app_, coverSheet_.view(), statusBar_, homeIndicator_, darkness_})
        window_.addSubview(view);
    window().makeKeyAndVisible();
    placeViews();
    updateVisibility();
}

void Shell::placeViews()
{
    const ScreenLayout layout = ScreenLayout::current();
    window_.setFrame(layout.bounds());
    for (const UI::View& view : {wallpaper_, homeScreen_.view(), app_, coverSheet_.view(), darkness_}) {
        view.setFrame(layout.bounds());
        view.setNeedsLayout();
    }
    statusBar_.setFrame(layout.statusBar());
    homeIndicator_.setFrame(layout.homeIndicator());
}

void Shell::updateVisibility()
{
    const bool showsApp = !presented_ && !frontApp_.empty();
    coverSheet_.view().setHidden(!presented_);
    homeScreen_.view().setHidden(presented_ || showsApp);
    app_.setHidden(!showsApp);
    homeIndicator_.setHidden(!ScreenLayout::current().hasHomeIndicator);
    darkness_.setHidden(lit_);
    darkness_.setAlpha(DeviceState::shared().installed.contains("LastLook") ? dimmed : 1);
    updateStatusBar();
}

void Shell::updateStatusBar()
{
    auto& bar = standIn<UIStatusBar_Modern>(statusBar_.raw());
    bar.setLeadingText(presented_ ? "Carrier"_ns : stockTimeText(NS::Date::date()));
    bar.update();
}

ObjC::Object Shell::instance(const std::string& className) const
{
    Class type = objc_getClass(className.c_str());
    if (!type)
        return {};
    for (const bool exactly : {true, false}) {
        for (const UI::ViewController& controller : {coverSheet_, homeScreen_}) {
            if (const ObjC::Object found = controller ? findController(controller, type, exactly) : ObjC::Object())
                return found;
        }
        if (const ObjC::Object found = window_ ? findView(window_, type, exactly) : ObjC::Object())
            return found;
        if (const ObjC::Object only = onlyObject(type); matches(only, type, exactly))
            return only;
    }
    return {};
}

}
