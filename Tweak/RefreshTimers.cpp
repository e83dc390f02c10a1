// Starts and stops the timers, and reaches the clock by its own message.
#include "Tweak/RefreshTimers.hpp"

#include "Platform/Companions/WeatherApp.hpp"
#include "Platform/Foundation/Dispatch.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Product/Names.hpp"
#include "Tweak/State.hpp"

namespace LYR {

LYR_VARIABLE(ObjC::Variable<NS::Timer>, _timer);
LYR_VARIABLE(double, _startTime, 0);
LYR_VARIABLE(ObjC::Variable<NS::Timer>, _timerLock);
LYR_VARIABLE(ObjC::Variable<NS::Timer>, _timerLight);
LYR_VARIABLE(ObjC::Variable<NS::Timer>, _timerWidget);
LYR_VARIABLE(ObjC::Variable<NS::Timer>, _timerLastLook);
LYR_VARIABLE(double, _startLastLook, 0);

double now()
{
    return NS::Date::date().timeIntervalSinceReferenceDate();
}

void stopTimer(const ObjC::Variable<NS::Timer>& timer)
{
    if (timer->isValid())
        timer->invalidate();
}

void stopAllTimers()
{
    for (const auto* timer : {&_timer, &_timerLock, &_timerLight, &_timerWidget, &_timerLastLook})
        stopTimer(*timer);
}

void updateDateViewAfterMilliseconds(std::int64_t delay)
{
    Dispatch::afterMilliseconds(delay, nullptr, [](void*) { dateView->updateTime(); });
}

bool isLastLookInstalled()
{
    return NS::FileManager::defaultManager().fileExistsAtPath(
        LYR_PREFIX LYR_EXTENSIONS "LastLook.dylib"_ns);
}

void refreshWeather()
{
    Weather::WeatherApp::sharedManager().refreshWeatherData();
}

}
