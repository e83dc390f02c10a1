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
    stockClock(m_coverSheet).setCustomSubtitle(text.empty() ? std::nullopt : std::optional(text));
}

void Shell::timer(double seconds)
{
    ObjC::AutoreleasePool pool;
    Loop& loop = Loop::shared();
    const bool starts = seconds > 0;
    const bool ran = loop.cancel(m_countdown);
    if (!starts && !ran)
        return;
    stockClock(m_coverSheet).setTimerDialShown(starts);
    if (starts) {
        m_countdownEnd = loop.uptime() + seconds;
        m_countdown = loop.scheduleRepeating(1, [this] { tickCountdown(); });
        tickCountdown();
    } else
        setSubtitle({});
    commit();
}

void Shell::showCountdown(const NS::String& text)
{
    const UI::ViewController controller = sheet(m_coverSheet).dateViewController;
    if (controller.respondsTo<"updateTimerWithText:">())
        controller.send<void, "updateTimerWithText:">(text);
    else
        setSubtitle(std::string(text.utf8()));
}

void Shell::tickCountdown()
{
    const double left = m_countdownEnd - Loop::shared().uptime();
    if (left < afterTheMinute)
        return timer(0);
    ObjC::AutoreleasePool pool;
    showCountdown(timerText(left - afterTheMinute));
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
    loop.cancel(m_minuteTimer);
    if (!m_lit || !m_presented)
        return;
    const double toNextMinute = 60 - (loop.now() - 60 * std::floor(loop.now() / 60));
    m_minuteTimer = loop.scheduleRepeating(toNextMinute + afterTheMinute, 60, [this] { updateClock(); });
}

void Shell::updateClock()
{
    ObjC::AutoreleasePool pool;
    if (m_presented && m_lit)
        sheet(m_coverSheet).dateViewController.send<void, "_updateView">();
    updateStatusBar();
    commit();
}

}
