#include "Simulator/Companions/Companions.hpp"

#include "Simulator/Companions/Registrations.hpp"

namespace Simulator {

void registerCompanions()
{
    registerHBPreferences();
    registerSparkColourPickerUtils();
    registerWeatherApp();
    registerEventKit();
    registerScheduledAlarms();
}

}
