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
    Loop::shared().cancel(m_minuteTimer);
    Loop::shared().cancel(m_countdown);
    standIn<SBCoverSheetPresentationManager>(sharedInstance("SBCoverSheetPresentationManager").raw()).dropCoverSheet();
    auto& running = Phone::part<RunningShell>();
    if (running.shell == this)
        running.shell = nullptr;
}

void Shell::start(HomeScreenAtStart homeScreen)
{
    ObjC::AutoreleasePool pool;
    buildWindow();
    applyDeviceState();
    if (homeScreen == HomeScreenAtStart::before)
        showHomeScreen();
    present(true);
    if (homeScreen == HomeScreenAtStart::after)
        m_homeScreen.send<void, "beginAppearanceTransition:animated:">(true, true);
    wake();
}

/// The controllers' views are laid out between "will appear" and "did appear".
void Shell::present(bool presented)
{
    if (presented == m_presented)
        return;
    m_presented = presented;
    if (presented && hasAppeared(m_homeScreen))
        m_homeScreen.send<void, "beginAppearanceTransition:animated:">(false, true);
    m_coverSheet.send<void, "beginAppearanceTransition:animated:">(presented, true);
    updateVisibility();
    commit();
    m_coverSheet.send<void, "endAppearanceTransition">();
    m_homeScreen.send<void, "endAppearanceTransition">();
    restartMinuteTimer();
}

void Shell::lock(bool byLongForm)
{
    ObjC::AutoreleasePool pool;
    const auto manager = sharedInstance("SBLockScreenManager");
    if (byLongForm)
        manager.send<void, "lockUIFromSource:withOptions:completion:">(sideButton, NS::Object(), ObjC::BlockArgument{});
    else
        manager.send<void, "lockUIFromSource:withOptions:">(sideButton, NS::Object());
    setLit(false);
    commit();
}

void Shell::showPasscode(bool shown)
{
    ObjC::AutoreleasePool pool;
    if (!m_presented)
        return;
    m_coverSheet.send<void, "setPasscodeLockVisible:animated:">(shown, true);
    commit();
}

void Shell::setLocked(bool locked)
{
    m_locked = locked;
    m_coverSheet.send<void, "setPasscodeLockVisible:animated:">(false, false);
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
    if (lit == m_lit)
        return;
    m_lit = lit;
    updateVisibility();
    restartMinuteTimer();
    if (lit) {
        standIn<SBFStaticWallpaperView>(m_wallpaper.raw()).reload();
        updateClock();
    }
}

void Shell::unlock()
{
    ObjC::AutoreleasePool pool;
    if (!m_lit)
        wake();
    sharedInstance("SBLockScreenManager").send<bool, "unlockUIFromSource:withOptions:">(sideButton, NS::Object());
    present(false);
    setFrontApp({});
    showHomeScreen();
    commit();
}

void Shell::showHomeScreen()
{
    if (hasAppeared(m_homeScreen))
        return;
    m_homeScreen.send<void, "beginAppearanceTransition:animated:">(true, true);
    updateVisibility();
    m_homeScreen.send<void, "endAppearanceTransition">();
}

void Shell::coverSheet()
{
    ObjC::AutoreleasePool pool;
    if (!m_lit)
        wake();
    revealHistory(!m_locked);
    present(true);
    commit();
}

void Shell::revealHistory(bool revealed)
{
    const auto combined = sheet(m_coverSheet).combinedListController;
    const auto list = standIn<CSCombinedListViewController>(combined.raw()).structuredList;
    standIn<NCNotificationStructuredListViewController>(list.raw()).setHistoryRevealed(revealed);
}

void Shell::openApp(const std::string& bundle)
{
    ObjC::AutoreleasePool pool;
    if (!m_lit)
        wake();
    sharedInstance("SBLockScreenManager").send<bool, "unlockUIFromSource:withOptions:">(sideButton, NS::Object());
    present(false);
    if (hasAppeared(m_homeScreen)) {
        m_homeScreen.send<void, "beginAppearanceTransition:animated:">(false, true);
        m_homeScreen.send<void, "endAppearanceTransition">();
    }
    setFrontApp(bundle);
    commit();
}

void Shell::setFrontApp(const std::string& bundle)
{
    if (bundle == m_frontApp)
        return;
    m_frontApp = bundle;
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
    battery.state = !charging ? BatteryState::unplugged
        : battery.level >= 1  ? BatteryState::full
                              : BatteryState::charging;
    deviceChanged();
    if (charging && !m_lit)
        wake();
    if (m_presented)
        showCharging(charging);
    commit();
}

void Shell::showCharging(bool charging)
{
    constexpr bool suppressedByPack = false;
    if (m_coverSheet.respondsTo<"_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:">())
        m_coverSheet.send<void, "_transitionChargingViewToVisible:suppressedByPack:showBattery:animated:">(
            charging, suppressedByPack, charging, true);
    else
        m_coverSheet.send<void, "_transitionChargingViewToVisible:showBattery:animated:">(charging, charging, true);
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
    return standIn<UIWindow>(m_window.raw());
}

}
