// Reads how far the stock parts are faded and slid.
#include "Tweak/CoverSheet/MotionHooks.hpp"

#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Clock/ClockLabels.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/State.hpp"
#include "Tweak/StockMotion.hpp"
#include "Tweak/Widgets/Strip.hpp"

namespace LYR {

namespace {

/// An editor has nothing to show without the clock, and would lie over what takes its place.
void fadeAlong(CGFloat time, CGFloat date)
{
    stockMotion.timeAlpha = time;
    stockMotion.dateAlpha = date;
    fadeClockLabels();
    moveStrip();
    moveBatterySaverButtons();
    if (time == 0 && isEditing()) {
        leaveEditor();
        _notifVC->scrollView().setHidden(false);
        installLongPress();
    }
}

}

void SBFLockScreenDateView_setContentAlpha(SB::FLockScreenDateView self, SEL cmd, double alpha, bool subtitleVisible)
{
    stock<SBFLockScreenDateView_setContentAlpha>(self, cmd, alpha, subtitleVisible);
    if (holdsClock(self))
        fadeAlong(alpha, subtitleVisible ? alpha : 0);
}

void SBFLockScreenDateView_setTimeAlpha(SB::FLockScreenDateView self, SEL cmd, double time, double subtitle)
{
    stock<SBFLockScreenDateView_setTimeAlpha>(self, cmd, time, subtitle);
    if (holdsClock(self))
        fadeAlong(time, subtitle);
}

/// The clock slides with the date view that it is in.
void CSCoverSheetView_layoutSubviews(CS::CoverSheetView self, SEL cmd)
{
    stock<CSCoverSheetView_layoutSubviews>(self, cmd);
    auto sliding = self.slideableContentView();
    if (!sliding || !(coverView->view() == self))
        return;
    stockMotion.slide = sliding.frame().origin;
    moveStrip();
    moveBatterySaverButtons();
}

}
