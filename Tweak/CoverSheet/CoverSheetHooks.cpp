#include "Tweak/CoverSheet/CoverSheetHooks.hpp"

#include "Platform/Companions/WeatherApp.hpp"
#include "Platform/Foundation/Dispatch.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/Views.hpp"

namespace LYR {

static void updateTimeAfterMilliseconds(std::int64_t delay)
{
    Dispatch::afterMilliseconds(delay, nullptr, [](void*) { dateView->updateTime(); });
}

void CSCoverSheetViewController_viewWillAppear(CS::CoverSheetViewController self, SEL cmd, bool animated)
{
    stock<CSCoverSheetViewController_viewWillAppear>(self, cmd, animated);
    Weather::WeatherApp::sharedManager().refreshWeatherData();
    if (_showWidget)
        updateTimeAfterMilliseconds(500);
}

void CSCoverSheetViewController_requestUpdateWidget(CS::CoverSheetViewController, SEL)
{
    updateTimeAfterMilliseconds(1000);
}

}
