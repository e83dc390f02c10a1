// The views and run-time state that the subjects of the extension share. Main thread only.
#pragma once

#include "Platform/SpringBoard/SBFLockScreenDateView.hpp"
#include "Platform/UIKit/UIImageView.hpp"
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

/// The strip of widgets under the clock; nil until the cover sheet is loaded.
extern constinit ObjC::Variable<UI::View> _widgetView;

// Weather in one cell: the day's scale, how far along it is, the temperature within and the day's ends below.
extern constinit ObjC::Variable<UI::ImageView> _HL;
extern constinit ObjC::Variable<UI::ImageView> _HLo;
extern constinit ObjC::Variable<UI::Label> _tempLabel;
extern constinit ObjC::Variable<UI::Label> _highLabel;
extern constinit ObjC::Variable<UI::Label> _lowLabel;

// Weather in two cells: the condition's icon, the temperature, and beside it the condition over the day's ends.
extern constinit ObjC::Variable<UI::Label> _conditionLabel;
extern constinit ObjC::Variable<UI::Label> _temperatureLabel;
extern constinit ObjC::Variable<UI::Label> _conLabel;
extern constinit ObjC::Variable<UI::Label> _HLLabel;

// Sun, alarm or event: the icon, what stands beside it (the day's other end, or the half of the day), the text.
extern constinit ObjC::Variable<UI::ImageView> _SL;
extern constinit ObjC::Variable<UI::ImageView> _upS;
extern constinit ObjC::Variable<UI::Label> _pm;
extern constinit ObjC::Variable<UI::Label> _sunLabel;

// The battery as a glyph, with its charge or under the phone: outline, level, a bolt for each place.
extern constinit ObjC::Variable<UI::ImageView> _BG;
extern constinit ObjC::Variable<UI::ImageView> _BL;
extern constinit ObjC::Variable<UI::ImageView> _BC;
extern constinit ObjC::Variable<UI::ImageView> _BC2;
extern constinit ObjC::Variable<UI::Label> _batteryLabel;
extern constinit ObjC::Variable<UI::ImageView> _phoneImage;

// The battery as a bar in two cells.
extern constinit ObjC::Variable<UI::Label> _batteryBarName;
extern constinit ObjC::Variable<UI::ImageView> _batteryBarBackground;
extern constinit ObjC::Variable<UI::ImageView> _batteryBarIndicator;
extern constinit ObjC::Variable<UI::Label> _batteryBarLabel;

/// Keeps a view under its variable's name, which is also how user-interface tests address it.
template <class T>
inline void keepView(ObjC::Variable<T>& variable, const T& view, const NS::String& name)
{
    view.setAccessibilityIdentifier(name);
    variable = view;
}

}
