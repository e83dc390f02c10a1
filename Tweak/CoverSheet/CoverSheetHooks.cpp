// The cover sheet's appearance brings clock, strip and editor onto it.
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"

#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/RefreshTimers.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Strip.hpp"

namespace LYR {

void CSCoverSheetViewController_viewDidLoad(CS::CoverSheetViewController self, SEL cmd)
{
    // What is open goes with the sheet that it stands on, before the clock and the list of another one are made.
    closeEditorAtOnce();
    stock<CSCoverSheetViewController_viewDidLoad>(self, cmd);
    createStrip(self);
    bringEditor(self);
    installLongPress();
}

void CSCoverSheetViewController_viewWillAppear(CS::CoverSheetViewController self, SEL cmd, bool animated)
{
    stock<CSCoverSheetViewController_viewWillAppear>(self, cmd, animated);
    installLongPress();
    stopTimer(_timerLastLook);
    showStrip(true);
    refreshWeather();
    if (_showWidget)
        updateDateViewAfterMilliseconds(500);
}

/// Other screens that appear take the long press away, and at a start one may do so after the lock screen's coming.
void CSCoverSheetViewController_viewDidAppear(CS::CoverSheetViewController self, SEL cmd, bool animated)
{
    stock<CSCoverSheetViewController_viewDidAppear>(self, cmd, animated);
    installLongPress();
}

void CSCoverSheetViewController_viewWillDisappear(CS::CoverSheetViewController self, SEL cmd, bool animated)
{
    stock<CSCoverSheetViewController_viewWillDisappear>(self, cmd, animated);
    closeColourSheet();
    for (const auto* timer : {&_timerWidget, &_timerLock, &_timerLight, &_timer, &_timerLastLook})
        stopTimer(*timer);
    leaveEditor();
    removeLongPress();
    _notifVC->scrollView().setHidden(false);
    _colorPickerPress = false;
}

void CSCoverSheetViewController_requestUpdateWidget(CS::CoverSheetViewController, SEL)
{
    updateDateViewAfterMilliseconds(1000);
}

}
