#include "Tweak/Lifecycle/IdleTimer.hpp"

namespace LYR {

SB::DashBoardIdleTimerProvider GetDashBoardIdleTimerProvider()
{
    using Provider = SB::DashBoardIdleTimerProvider;
    auto manager = SB::CoverSheetPresentationManager::sharedInstance();
    if (manager.respondsTo<"dashBoardViewController">())
        return manager.dashBoardViewController().safeValueForKey<Provider>("_dashBoardIdleTimerProvider"_ns);
    if (manager.respondsTo<"coverSheetViewController">())
        return manager.coverSheetViewController().idleTimerController().safeValueForKey<Provider>(
            "_idleTimerProvider"_ns);
    return {};
}

}
