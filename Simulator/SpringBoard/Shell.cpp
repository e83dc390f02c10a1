// What a hand does to the phone, and how the shell goes through it.
#include "Simulator/SpringBoard/Shell.hpp"

#include "Simulator/Base/Phone.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/CoverSheet.hpp"
#include "Simulator/SpringBoard/FrontApplication.hpp"
#include "Simulator/SpringBoard/NotificationList.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/SpringBoard/Wallpaper.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <utility>

namespace Simulator {

namespace {

struct RunningShell {
    Shell* shell = nullptr;
};

constexpr int sideButton = 1;

UIViewController& controllerOf(const UI::ViewController& controller)
{
    return standIn<UIViewController>(controller.raw());
}

bool hasAppeared(const UI::ViewController& controller)
{
    return controllerOf(controller).appearance == UIViewController::Appearance::appeared;
}

CSCoverSheetViewController& sheet(const UI::ViewController& controller)
{
    return standIn<CSCoverSheetViewController>(controller.raw());
}

}

Shell* Shell::current()
{
    const auto* running = Phone::partIfMade<RunningShell>();
    return running ? running->shell : nullptr;
}

Shell::Shell()
{
    Phone::part<RunningShell>().shell = this;
}

Shell::~Shell()
{
    ObjC::AutoreleasePool pool;
    Loop::shared().cancel(minuteTimer_);
    Loop::shared().cancel(countdown_);
    standIn<SBCoverSheetPresentationManager>(sharedInstance("SBCoverSheetPresentationManager").raw()).dropCoverSheet();
    auto& running = Phone::part<RunningShell>();
    if (running.shell == this)
        running.shell = nullptr;
}

void Shell::start()
{
    ObjC::AutoreleasePool pool;
    buildWindow();
    applyDeviceState();
    present(true);
    wake();
}

/// The controllers' views are laid out between "will appear" and "did appear".
void Shell::present(bool presented)
{
    if (presented == presented_)
        return;
    presented_ = presented;
    if (presented && hasAppeared(homeScreen_))
        homeScreen_.send<void, "beginAppearanceTransition:animated:">(false, true);
    coverSheet_.send<void, "beginAppearanceTransition:animated:">(presented, true);
    updateVisibility();
    commit();
    coverSheet_.send<void, "endAppearanceTransition">();
    homeScreen_.send<void, "endAppearanceTransition">();
    restartMinuteTimer();
}

void Shell::lock()
{
    ObjC::AutoreleasePool pool;
    sharedInstance("SBLockScreenManager").send<void, "lockUIFromSource:withOptions:">(sideButton, NS::Object());
    setLit(false);
    commit();
}

void Shell::setLocked(bool locked)
{
    locked_ = locked;
    if (locked) {
        revealHistory(false);
        present(true);
    }
    updateStatusBar();
}

void Shell::wake()
{
    ObjC::AutoreleasePool pool;
    sharedInstance("SBBacklightController").send<void, "turnOnScreenFullyWithBacklightSource:">(long{sideButton});
    commit();
}

/// In the dark nothing of the stock clock moves; it is right again as soon as there is light.
void Shell::setLit(bool lit)
{
    if (lit == lit_)
        return;
    lit_ = lit;
    updateVisibility();
    restartMinuteTimer();
    if (lit) {
        standIn<SBFStaticWallpaperView>(wallpaper_.raw()).reload();
        updateClock();
    }
}

void Shell::unlock()
{
    ObjC::AutoreleasePool pool;
    if (!lit_)
        wake();
    sharedInstance("SBLockScreenManager").send<void, "unlockUIFromSource:withOptions:">(sideButton, NS::Object());
    present(false);
    setFrontApp({});
    showHomeScreen();
    commit();
}

void Shell::showHomeScreen()
{
    if (hasAppeared(homeScreen_))
        return;
    homeScreen_.send<void, "beginAppearanceTransition:animated:">(true, true);
    updateVisibility();
    homeScreen_.send<void, "endAppearanceTransition">();
}

void Shell::coverSheet()
{
    ObjC::AutoreleasePool pool;
    if (!lit_)
        wake();
    revealHistory(!locked_);
    present(true);
    commit();
}

void Shell::revealHistory(bool revealed)
{
    const auto combined = sheet(coverSheet_).combinedListController;
    const auto list = standIn<CSCombinedListViewController>(combined.raw()).structuredList;
    standIn<NCNotificationStructuredListViewController>(list.raw()).setHistoryRevealed(revealed);
}

void Shell::openApp(const std::string& bundle)
{
    ObjC::AutoreleasePool pool;
    if (!lit_)
        wake();
    sharedInstance("SBLockScreenManager").send<void, "unlockUIFromSource:withOptions:">(sideButton, NS::Object());
    present(false);
    if (hasAppeared(homeScreen_)) {
        homeScreen_.send<void, "beginAppearanceTransition:animated:">(false, true);
        homeScreen_.send<void, "endAppearanceTransition">();
    }
    setFrontApp(bundle);
    commit();
}

void Shell::setFrontApp(const std::string& bundle)
{
    if (bundle == frontApp_)
        return;
    frontApp_ = bundle;
    updateVisibility();
    const NS::Object application = bundle.empty() ? NS::Object() : makeFrontApplication(bundle);
    instance("SpringBoard").send<void, "frontDisplayDidChange:">(application);
}

void Shell::memoryWarning()
{
    ObjC::AutoreleasePool pool;
    instance("SpringBoard").send<void, "didReceiveMemoryWarning">();
    commit();
}

void Shell::charge(bool charging)
{
    ObjC::AutoreleasePool pool;
    Battery& battery = DeviceState::shared().battery;
    battery.state = !charging ? BatteryState::Unplugged
        : battery.level >= 1  ? BatteryState::Full
                              : BatteryState::Charging;
    deviceChanged();
    if (charging && !lit_)
        wake();
    if (presented_)
        coverSheet_.send<void, "_transitionChargingViewToVisible:showBattery:animated:">(charging, charging, true);
    commit();
}

void Shell::setStyle(InterfaceStyle style)
{
    DeviceState::shared().style = style;
    deviceChanged();
}

void Shell::rotate(bool landscape)
{
    ObjC::AutoreleasePool pool;
    CGSize& size = screenSettings().size;
    if (landscape != (size.width > size.height))
        std::swap(size.width, size.height);
    placeViews();
    commit();
}

void Shell::deviceChanged()
{
    ObjC::AutoreleasePool pool;
    applyDeviceState();
    commit();
}

void Shell::applyDeviceState()
{
    updateStatusBar();
    changeInterfaceStyle(window(), DeviceState::shared().style);
}

void Shell::commit()
{
    ObjC::AutoreleasePool pool;
    layoutTree(window());
}

UIWindow& Shell::window() const
{
    return standIn<UIWindow>(window_.raw());
}

}
