// Storage of the shared state.
#include "Tweak/State.hpp"

#include "Tweak/StockMotion.hpp"

namespace LYR {

LYR_VIEW(UI::Label, _timeLabel);
LYR_VIEW(UI::Label, _dateLabel);
LYR_VIEW(UI::Label, _timerLabel);
LYR_VIEW(UI::View, _timeBorderView);
LYR_VIEW(UI::View, _dateBorderView);
LYR_VIEW(UI::View, _widgetView);

LYR_VARIABLE(ObjC::Variable<SB::FLockScreenDateViewController>, dateView);
LYR_VARIABLE(ObjC::Variable<SB::FLockScreenDateView>, lockscreenDateView);
LYR_VARIABLE(ObjC::Variable<NC::StructuredListViewController>, _notifVC);
LYR_VARIABLE(ObjC::Variable<CS::CoverSheetViewController>, coverView);

constinit StockMotion stockMotion{};

LYR_VARIABLE(bool, isTimerRunning, false);
LYR_VARIABLE(bool, _screenOn, false);
LYR_VARIABLE(bool, _isLPM, false);
LYR_VARIABLE(bool, _colorPickerPress, false);

}
