// A full refresh, a quick one, a later one, and the stock messages that ask for them.
#include "Tweak/Clock/ClockHooks.hpp"

#include "Platform/Foundation/Dispatch.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Clock/ClockLabels.hpp"
#include "Tweak/Clock/ClockText.hpp"
#include "Tweak/RefreshTimers.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Strip.hpp"

namespace LYR {

namespace {

void refreshFully(const SB::FLockScreenDateViewController& controller)
{
    auto moment = NS::Date::date();
    Items items(moment);
    auto time = timeText(moment);
    styleClockLabels(controller);
    refreshStrip(items);
    updateDateLine(moment, items);
    settleTimerAndDate();
    _timeLabel->setText(time);
    applyClockVisibility();
}

void refreshQuickly(const SB::FLockScreenDateViewController&)
{
    auto moment = NS::Date::date();
    Items items(moment);
    _timeLabel->setText(timeText(moment));
    placeStrip(items);
}

/// Runs on the main queue with the controller that asked, which was kept alive until now.
template <void (*refresh)(const SB::FLockScreenDateViewController&)>
void refreshLater(const SB::FLockScreenDateViewController& controller, std::int64_t milliseconds)
{
    Dispatch::afterMilliseconds(milliseconds, SB::FLockScreenDateViewController(controller).leak(), [](void* context) {
        ObjC::AutoreleasePool pool;
        refresh(SB::FLockScreenDateViewController::adopting(static_cast<id>(context)));
    });
}

}

SB::FLockScreenDateView SBFLockScreenDateView_initWithFrame(SB::FLockScreenDateView self, SEL cmd, CGRect frame)
{
    auto view = stockInitializer<SBFLockScreenDateView_initWithFrame>(self, cmd, frame);
    lockscreenDateView = view;
    return view;
}

/// The date line follows here too, so that it changes with the stock date's own updates.
void SBFLockScreenDateView_updateLabels(SB::FLockScreenDateView self, SEL cmd)
{
    stock<SBFLockScreenDateView_updateLabels>(self, cmd);
    auto moment = NS::Date::date();
    Items items(moment);
    _timeLabel->setText(timeText(moment));
    placeStrip(items);
    updateDateLine(moment, items);
    settleTimerAndDate();
}

/// The lock screen's stock clock stays in the tree but never shows. Other screens have date views of their own.
void SBFLockScreenDateView_layoutSubviews(SB::FLockScreenDateView self, SEL cmd)
{
    stock<SBFLockScreenDateView_layoutSubviews>(self, cmd);
    if (holdsClock(self))
        setStockTimeHidden(self, true);
}

SB::FLockScreenDateView SBFLockScreenDateViewController_dateView(SB::FLockScreenDateViewController self, SEL cmd)
{
    auto view = stock<SBFLockScreenDateViewController_dateView>(self, cmd);
    dateView = self;
    return view;
}

void SBFLockScreenDateViewController_viewDidLoad(SB::FLockScreenDateViewController self, SEL cmd)
{
    stock<SBFLockScreenDateViewController_viewDidLoad>(self, cmd);
    createClockLabels(self);
}

void SBFLockScreenDateViewController_viewWillAppear(SB::FLockScreenDateViewController self, SEL cmd, bool animated)
{
    stock<SBFLockScreenDateViewController_viewWillAppear>(self, cmd, animated);
    if (_timer->isValid())
        return;
    _timer = NS::Timer::scheduled(1.0, self, ObjC::selector<"requestUpdateTime">(), false);
    _startTime = now();
    _timer->fire();
    placeClockLabels(self);
}

void SBFLockScreenDateViewController_viewWillDisappear(SB::FLockScreenDateViewController self, SEL cmd, bool animated)
{
    stock<SBFLockScreenDateViewController_viewWillDisappear>(self, cmd, animated);
    stopAllTimers();
}

void SBFLockScreenDateViewController_updateTime(SB::FLockScreenDateViewController self, SEL)
{
    refreshLater<refreshFully>(self, 100);
}

void SBFLockScreenDateViewController_requestUpdateTime(SB::FLockScreenDateViewController self, SEL)
{
    refreshLater<refreshQuickly>(self, 10);
    if (now() - _startTime > 1.0)
        _timer->invalidate();
}

}
