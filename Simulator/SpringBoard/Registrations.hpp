// One registration for each file of classes in this folder.
#pragma once

namespace Simulator {

void registerAxon();
void registerApplication();
void registerBatterySaver();
void registerBatteryView();
void registerChargingView();
void registerCoverSheet();
void registerDateView();
void registerDateViewController();
void registerHomeScreen();
void registerIdleTimer();
void registerLegibilityLabel();
void registerLockScreenManager();
void registerNotificationList();
void registerNotificationPlatter();
void registerNotificationSection();
void registerQuickActions();
void registerStatusBar();
void registerSystemService();
void registerTeachableMoments();
void registerWallpaper();

}
