#include "Tweak/Lifecycle/RefreshTimers.hpp"

#include "Platform/Companions/WeatherApp.hpp"
#include "Platform/Foundation/Dispatch.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

constinit ObjC::Variable<NS::Timer> _timer;
constinit double _startTime = 0;
constinit ObjC::Variable<NS::Timer> _timerLock;
constinit ObjC::Variable<NS::Timer> _timerLight;
constinit ObjC::Variable<NS::Timer> _timerWidget;
constinit ObjC::Variable<NS::Timer> _timerLastLook;
constinit double _startLastLook = 0;
constinit bool _screenOn = false;

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
        LYR_PREFIX "/Library/MobileSubstrate/DynamicLibraries/LastLook.dylib"_ns);
}

void refreshWeather()
{
    Weather::WeatherApp::sharedManager().refreshWeatherData();
}

}
