// The stock clock's minutes, and what stands in its subtitle.
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/CoverSheet.hpp"
#include "Simulator/SpringBoard/DateView.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/StockDateText.hpp"

#include <cmath>

namespace Simulator {

namespace {

/// The clock reads the new minute for certain.
constexpr double afterTheMinute = 0.001;

CSCoverSheetViewController& sheet(const UI::ViewController& controller)
{
    return standIn<CSCoverSheetViewController>(controller.raw());
}

SBFLockScreenDateView& stockClock(const UI::ViewController& coverSheet)
{
    return standIn<SBFLockScreenDateView>(sheet(coverSheet).dateView().raw());
}

}

void Shell::subtitle(const std::string& text)
{
    ObjC::AutoreleasePool pool;
    timer(0);
    setSubtitle(text);
    commit();
}

void Shell::setSubtitle(const std::string& text)
{
    stockClock(coverSheet_).setCustomSubtitle(text.empty() ? std::nullopt : std::optional(text));
}

void Shell::timer(double seconds)
{
    ObjC::AutoreleasePool pool;
    Loop& loop = Loop::shared();
    const bool starts = seconds > 0;
    const bool ran = loop.cancel(countdown_);
    if (!starts && !ran)
        return;
    stockClock(coverSheet_).setTimerDialShown(starts);
    if (starts) {
        countdownEnd_ = loop.uptime() + seconds;
        countdown_ = loop.scheduleRepeating(1, [this] { tickCountdown(); });
        tickCountdown();
    } else
        setSubtitle({});
    commit();
}

void Shell::tickCountdown()
{
    const double left = countdownEnd_ - Loop::shared().uptime();
    if (left < afterTheMinute)
        return timer(0);
    ObjC::AutoreleasePool pool;
    setSubtitle(std::string(timerText(left - afterTheMinute).utf8()));
    commit();
}

void Shell::clockChanged()
{
    restartMinuteTimer();
    updateClock();
}

void Shell::restartMinuteTimer()
{
    Loop& loop = Loop::shared();
    loop.cancel(minuteTimer_);
    if (!lit_ || !presented_)
        return;
    const double toNextMinute = 60 - (loop.now() - 60 * std::floor(loop.now() / 60));
    minuteTimer_ = loop.scheduleRepeating(toNextMinute + afterTheMinute, 60, [this] { updateClock(); });
}

void Shell::updateClock()
{
    ObjC::AutoreleasePool pool;
    if (presented_ && lit_)
        sheet(coverSheet_).dateViewController.send<void, "_updateView">();
    updateStatusBar();
    commit();
}

}
