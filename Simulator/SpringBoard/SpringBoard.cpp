#include "Simulator/SpringBoard/SpringBoard.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"

namespace Simulator {

void registerSpringBoard()
{
    registerSystemService();
    registerApplication();
    registerBatterySaver();
    registerLegibilityLabel();
    registerWallpaper();
    registerBatteryView();
    registerStatusBar();
    registerDateView();
    registerDateViewController();
    registerNotificationPlatter();
    registerNotificationSection();
    registerNotificationList();
    registerQuickActions();
    registerTeachableMoments();
    registerChargingView();
    registerIdleTimer();
    registerCoverSheet();
    registerLockScreenManager();
    registerHomeScreen();
    if (DeviceState::shared().installed.contains("Axon"))
        registerAxon();
}

}
