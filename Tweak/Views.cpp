// Storage of the shared state.
#include "Tweak/Views.hpp"

namespace LYR {

constinit ObjC::Variable<UI::Label> _timeLabel;
constinit ObjC::Variable<UI::Label> _dateLabel;
constinit ObjC::Variable<UI::Label> _timerLabel;
constinit ObjC::Variable<UI::View> _timeBorderView;
constinit ObjC::Variable<UI::View> _dateBorderView;

constinit ObjC::Variable<SB::FLockScreenDateViewController> dateView;
constinit ObjC::Variable<SB::FLockScreenDateView> lockscreenDateView;

constinit ObjC::Variable<UI::Color> _bgWallColor;
constinit ObjC::Variable<UI::Color> _primaryWallColor;
constinit ObjC::Variable<UI::Color> _secondaryWallColor;

constinit bool isTimerRunning = false;

constinit ObjC::Variable<UI::View> _widgetView;

}
