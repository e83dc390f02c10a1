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
    m_window = makeView("UIWindow", ScreenLayout::current().bounds(), "stock.window");
    m_window.setBackgroundColor(UI::Color::blackColor());
    m_wallpaper = makeView("SBFStaticWallpaperView", {}, "stock.wallpaper");
    m_homeScreen = makeController("SBHomeScreenViewController");
    m_app = makeView("UIView", {}, "stock.app");
    m_app.setBackgroundColor(UI::Color::whiteColor());
    m_coverSheet
        = sharedInstance("SBCoverSheetPresentationManager").send<UI::ViewController, "coverSheetViewController">();
    m_statusBar = makeView("UIStatusBar_Modern", {}, "stock.statusBar");
    m_homeIndicator = makePlate({}, whiteWithAlpha(0.9), 2.5);
    m_homeIndicator.setAccessibilityIdentifier("stock.homeIndicator"_ns);
    m_darkness = makeView("UIView", {}, "stock.darkness");
    m_darkness.setBackgroundColor(UI::Color::blackColor());
    for (const UI::View& view :
        {m_wallpaper, m_homeScreen.view(), m_app, m_coverSheet.view(), m_statusBar, m_homeIndicator, m_darkness})
        m_window.addSubview(view);
    window().makeKeyAndVisible();
    placeViews();
    updateVisibility();
}

void Shell::placeViews()
{
    const ScreenLayout layout = ScreenLayout::current();
    m_window.setFrame(layout.bounds());
    for (const UI::View& view : {m_wallpaper, m_homeScreen.view(), m_app, m_coverSheet.view(), m_darkness}) {
        view.setFrame(layout.bounds());
        view.setNeedsLayout();
    }
    m_statusBar.setFrame(layout.statusBar());
    m_homeIndicator.setFrame(layout.homeIndicator());
}

void Shell::updateVisibility()
{
    const bool showsApp = !m_presented && !m_frontApp.empty();
    m_coverSheet.view().setHidden(!m_presented);
    m_homeScreen.view().setHidden(m_presented || showsApp);
    m_app.setHidden(!showsApp);
    m_homeIndicator.setHidden(!ScreenLayout::current().hasHomeIndicator);
    m_darkness.setHidden(m_lit);
    m_darkness.setAlpha(DeviceState::shared().installed.contains("LastLook") ? dimmed : 1);
    updateStatusBar();
}

void Shell::updateStatusBar()
{
    auto& bar = standIn<UIStatusBar_Modern>(m_statusBar.raw());
    bar.setLeadingText(m_presented ? "Carrier"_ns : stockTimeText(NS::Date::date()));
    bar.update();
}

ObjC::Object Shell::instance(const std::string& className) const
{
    Class type = objc_getClass(className.c_str());
    if (!type)
        return {};
    for (const bool exactly : {true, false}) {
        for (const UI::ViewController& controller : {m_coverSheet, m_homeScreen}) {
            if (const ObjC::Object found = controller ? findController(controller, type, exactly) : ObjC::Object())
                return found;
        }
        if (const ObjC::Object found = m_window ? findView(m_window, type, exactly) : ObjC::Object())
            return found;
        if (const ObjC::Object only = onlyObject(type); matches(only, type, exactly))
            return only;
    }
    return {};
}

}
