// The timers that keep the lock screen current, and the one call in which every refresh ends.
#pragma once

#include "Platform/Foundation/NSTimer.hpp"

#include <cstdint>

namespace LYR {

/// The kick-off of the clock when the date view appears, and when it was started (seconds since 2001).
extern constinit ObjC::Variable<NS::Timer> _timer;
extern constinit double _startTime;
/// The kick-off of the widgets when the screen lights up for the first time. Made once in the life of the process.
extern constinit ObjC::Variable<NS::Timer> _timerLock;
/// The same for every later light.
extern constinit ObjC::Variable<NS::Timer> _timerLight;
/// Stopped with the others; nothing starts it.
extern constinit ObjC::Variable<NS::Timer> _timerWidget;
/// The minute's refresh while LastLook keeps the lock screen visible, and when it was started.
extern constinit ObjC::Variable<NS::Timer> _timerLastLook;
extern constinit double _startLastLook;

/// Seconds since 2001, UTC.
double now();
/// Invalidates a timer that is valid. The variable keeps it.
void stopTimer(const ObjC::Variable<NS::Timer>& timer);
/// All of them: clock, light, widget, LastLook.
void stopAllTimers();
/// A full refresh of the current date view after a delay.
void updateDateViewAfterMilliseconds(std::int64_t delay);
/// Looked up anew at each call, so that it may come and go.
bool isLastLookInstalled();
void refreshWeather();

}
