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

constinit ObjC::Variable<UI::ImageView> _HL;
constinit ObjC::Variable<UI::ImageView> _HLo;
constinit ObjC::Variable<UI::Label> _tempLabel;
constinit ObjC::Variable<UI::Label> _highLabel;
constinit ObjC::Variable<UI::Label> _lowLabel;
constinit ObjC::Variable<UI::Label> _conditionLabel;
constinit ObjC::Variable<UI::Label> _temperatureLabel;
constinit ObjC::Variable<UI::Label> _conLabel;
constinit ObjC::Variable<UI::Label> _HLLabel;
constinit ObjC::Variable<UI::ImageView> _SL;
constinit ObjC::Variable<UI::ImageView> _upS;
constinit ObjC::Variable<UI::Label> _pm;
constinit ObjC::Variable<UI::Label> _sunLabel;
constinit ObjC::Variable<UI::ImageView> _BG;
constinit ObjC::Variable<UI::ImageView> _BL;
constinit ObjC::Variable<UI::ImageView> _BC;
constinit ObjC::Variable<UI::ImageView> _BC2;
constinit ObjC::Variable<UI::Label> _batteryLabel;
constinit ObjC::Variable<UI::ImageView> _phoneImage;
constinit ObjC::Variable<UI::Label> _batteryBarName;
constinit ObjC::Variable<UI::ImageView> _batteryBarBackground;
constinit ObjC::Variable<UI::ImageView> _batteryBarIndicator;
constinit ObjC::Variable<UI::Label> _batteryBarLabel;

}
