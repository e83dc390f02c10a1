// The views and run-time state that the subjects of the extension share. Main thread only.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Platform/UIKit/UILabel.hpp"

namespace LYR {

// The clock: made when the stock date view controller loads.
extern constinit ObjC::Variable<UI::Label> _timeLabel;
extern constinit ObjC::Variable<UI::Label> _dateLabel;
/// Stands in the date's place while a timer runs.
extern constinit ObjC::Variable<UI::Label> _timerLabel;
extern constinit ObjC::Variable<UI::View> _timeBorderView;
extern constinit ObjC::Variable<UI::View> _dateBorderView;

// The stock controllers and views that were seen last.
extern constinit ObjC::Variable<SB::FLockScreenDateViewController> dateView;
extern constinit ObjC::Variable<SB::FLockScreenDateView> lockscreenDateView;

// Colours taken from the wallpaper at each full refresh; nil without a wallpaper.
extern constinit ObjC::Variable<UI::Color> _bgWallColor;
extern constinit ObjC::Variable<UI::Color> _primaryWallColor;
extern constinit ObjC::Variable<UI::Color> _secondaryWallColor;

/// The stock subtitle shows a running timer.
extern constinit bool isTimerRunning;

/// The strip of widgets under the clock; nil until it is built.
extern constinit ObjC::Variable<UI::View> _widgetView;

/// Keeps a view under its variable's name, which is also how user-interface tests address it.
template <class T>
inline void keepView(ObjC::Variable<T>& variable, const T& view, const NS::String& name)
{
    view.setAccessibilityIdentifier(name);
    variable = view;
}

}
