// What runs when the phone is locked, lit, unlocked or short of memory.
#include "Tweak/Lifecycle/LifecycleHooks.hpp"

#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/RefreshTimers.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Strip.hpp"

namespace LYR {

namespace {

constexpr double minute = 60;
constexpr double lastLookLimit = 5 * 60 * minute;
constexpr std::int64_t widgetDelay = 10;

/// LastLook shows the lock screen while it is locked, and clock or widgets are to stay current there.
bool staysCurrent()
{
    return isLastLookInstalled() && (_showWidgetLastLook || _updateLastLook);
}

/// Keeps the lock screen current for as long as LastLook shows it.
void keepUpUnderLastLook(const SB::LockScreenManager& manager)
{
    showStrip(_showWidgetLastLook);
    if (!_timerLastLook->isValid()) {
        _timerLastLook = NS::Timer::scheduled(minute, manager, ObjC::selector<"requestUpdateWidget">(), true);
        _startLastLook = now();
        _timerLastLook->fire();
    }
    refreshWeather();
}

/// A second after the light. The timer of the first light is never made anew; every later light has one of its own.
void refreshAfterLight(const SB::BacklightController& controller)
{
    auto& timer = _timerLock ? _timerLight : _timerLock;
    stopTimer(timer);
    timer = NS::Timer::scheduled(1.0, controller, ObjC::selector<"requestUpdateWidget">(), false);
}

void showWidgets()
{
    showStrip(true);
    stopTimer(_timerLastLook);
}

}

void SBHomeScreenViewController_viewWillAppear(UI::ViewController self, SEL cmd, bool animated)
{
    stock<SBHomeScreenViewController_viewWillAppear>(self, cmd, animated);
    stopAllTimers();
    removeOverlay();
    removeWidgetButton();
    // As the shell starts, the home screen may come behind the lock screen, which keeps its long press.
    if (!SB::LockScreenManager::sharedInstance().isLockScreenVisible())
        removeLongPress();
}

void SpringBoard_didReceiveMemoryWarning(UI::Responder self, SEL cmd)
{
    stock<SpringBoard_didReceiveMemoryWarning>(self, cmd);
    stopAllTimers();
    removeOverlay();
    removeWidgetButton();
}

void SpringBoard_frontDisplayDidChange(UI::Responder self, SEL cmd, NS::Object application)
{
    stock<SpringBoard_frontDisplayDidChange>(self, cmd, application);
    if (!_enabled || !application)
        return;
    stopAllTimers();
    removeOverlay();
}

/// The stock dial never shows: the clock has a timer line of its own.
void SBLockScreenTimerDialView_didMoveToWindow(UI::View self, SEL cmd)
{
    self.removeFromSuperview();
    stock<SBLockScreenTimerDialView_didMoveToWindow>(self, cmd);
}

namespace {

/// How many of the lock messages are under way: on some systems the one ends in the other.
constinit int locking = 0;

void settleAfterLock(const SB::LockScreenManager& manager)
{
    closeColourSheet();
    coverView->send<void, "doneButton:">(ObjC::Object());
    stopTimer(_timer);
    stopTimer(_timerWidget);
    _screenOn = false;
    hideOverlay();
    if (staysCurrent())
        keepUpUnderLastLook(manager);
    else {
        showStrip(false);
        stopTimer(_timerLock);
        stopTimer(_timerLight);
        stopTimer(_timerLastLook);
    }
    removeOverlay();
    _buttonCL->setHidden(true);
    _dateBorderView->setHidden(true);
    _timeBorderView->setHidden(true);
}

/// Runs the stock message, and what follows it once where it ends in the other.
template <class Message>
void lock(const SB::LockScreenManager& manager, Message stockMessage)
{
    ++locking;
    stockMessage();
    if (--locking == 0)
        settleAfterLock(manager);
}

}

void SBLockScreenManager_lockUIFromSource(SB::LockScreenManager self, SEL cmd, int source, NS::Object options)
{
    lock(self, [&] { stock<SBLockScreenManager_lockUIFromSource>(self, cmd, source, options); });
}

void SBLockScreenManager_lockUIFromSourceWithCompletion(
    SB::LockScreenManager self, SEL cmd, int source, NS::Object options, ObjC::BlockArgument completion)
{
    lock(self,
        [&] { stock<SBLockScreenManager_lockUIFromSourceWithCompletion>(self, cmd, source, options, completion); });
}

void SBLockScreenManager_requestUpdateWidget(SB::LockScreenManager, SEL)
{
    updateDateViewAfterMilliseconds(widgetDelay);
    if (now() - _startLastLook > lastLookLimit)
        _timerLastLook->invalidate();
}

void SBBacklightController_turnOnScreenFully(SB::BacklightController self, SEL cmd, long source)
{
    stock<SBBacklightController_turnOnScreenFully>(self, cmd, source);
    if (!SB::LockScreenManager::sharedInstance().isLockScreenVisible() || _screenOn)
        return;
    refreshAfterLight(self);
    showWidgets();
    showBatterySaverState();
    _screenOn = true;
    // The test is the opposite of the one at lock time.
    if (!isLastLookInstalled() && _showWidgetLastLook)
        showWidgets();
    refreshWeather();
}

/// What counts is the clock timer's start, not that of the timer that is stopped.
void SBBacklightController_requestUpdateWidget(SB::BacklightController, SEL)
{
    updateDateViewAfterMilliseconds(widgetDelay);
    if (now() - _startTime > 1.0)
        _timerLock->invalidate();
}

}
