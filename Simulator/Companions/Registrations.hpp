// One registration for each file of classes in this folder.
#pragma once

namespace Simulator {

void registerHBPreferences();
void registerSparkColourPickerUtils();
void registerWeatherApp();
void registerEventKit();
void registerScheduledAlarms();

}
