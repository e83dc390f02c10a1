// The views and the run-time state that the rooms of the extension share. Main thread only.
#pragma once

#include "Platform/SpringBoard/CSCoverSheetViewController.hpp"
#include "Platform/SpringBoard/NCNotificationList.hpp"
#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Tweak/Variables.hpp"

namespace LYR {

/// The clock: made when the stock date view controller loads.
LYR_EXTERN_VIEW(UI::Label, _timeLabel);
LYR_EXTERN_VIEW(UI::Label, _dateLabel);
/// Stands in the date's place while a timer runs.
LYR_EXTERN_VIEW(UI::Label, _timerLabel);
LYR_EXTERN_VIEW(UI::View, _timeBorderView);
LYR_EXTERN_VIEW(UI::View, _dateBorderView);
/// The strip of widgets under the clock; nil until the cover sheet is loaded.
LYR_EXTERN_VIEW(UI::View, _widgetView);

/// The stock controllers and views that were seen last.
extern constinit ObjC::Variable<SB::FLockScreenDateViewController> dateView;
extern constinit ObjC::Variable<SB::FLockScreenDateView> lockscreenDateView;
extern constinit ObjC::Variable<NC::StructuredListViewController> _notifVC;
extern constinit ObjC::Variable<CS::CoverSheetViewController> coverView;

/// The stock subtitle shows a running timer.
extern constinit bool isTimerRunning;
/// The screen has been lit on the visible lock screen since the last lock.
extern constinit bool _screenOn;
/// Low-power mode is on.
extern constinit bool _isLPM;
/// A colour of the sheet is being edited.
extern constinit bool _colorPickerPress;

/// Keeps a view under its variable's name, which is also how user-interface tests address it.
template <class T, ObjC::FixedString name>
inline void keepView(ObjC::NamedVariable<T, name>& variable, const T& view)
{
    view.setAccessibilityIdentifier(NS::String::fromUTF8(name.view()));
    variable = view;
}

}
