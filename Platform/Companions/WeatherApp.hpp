// The weather library.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"

namespace Weather {

class WeatherApp : public ObjC::PrivateClass_<WeatherApp, NS::Object, "WeatherApp"> {
public:
    using PrivateClass_::PrivateClass_;

    static WeatherApp sharedManager() { return sendClass<WeatherApp, "sharedManager">(); }
    void refreshWeatherData() const { send<void, "refreshWeatherData">(); }
    /// "location", "conditions", "conditionsImage", "temperature", "sunrise", "sunset"; nil while there is no data.
    NS::Dictionary weatherData() const { return send<NS::Dictionary, "weatherData">(); }
    NS::String lowestTemperature() const { return send<NS::String, "lowestTemperature">(); }
    NS::String highestTemperature() const { return send<NS::String, "highestTemperature">(); }
};

}
