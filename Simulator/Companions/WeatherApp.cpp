// The weather library: the device's weather as the dictionary that it gives out.
#include "Platform/Companions/WeatherApp.hpp"
#include "Simulator/Base/HostFile.hpp"

#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/Companions/PropertyListValues.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <iterator>

namespace Simulator {

namespace {

using Value = WeatherReport::Value;

struct WeatherMember {
    const char* key;
    Value WeatherReport::*member;
};

constexpr WeatherMember weatherMembers[] = {
    {"location", &WeatherReport::location},
    {"conditions", &WeatherReport::conditions},
    {"temperature", &WeatherReport::temperature},
    {"sunrise", &WeatherReport::sunrise},
    {"sunset", &WeatherReport::sunset},
};

NS::Object objectOrNil(const Value& value)
{
    return value == "" ? NS::Object() : valueOfJson(value);
}

/// The picture of the conditions lies on the host.
UI::Image imageOnHost(const std::string& path)
{
    const std::string bytes = readHostFile(path).value;
    return bytes.empty() ? UI::Image() : UI::Image::imageWithData(NS::Data::dataWithBytes(bytes.data(), bytes.size()));
}

class WeatherApp : public StandIn {
public:
    using Root = WeatherApp;

    void refreshWeatherData()
    {
        ExtensionCounts::shared().add(Count::weatherRequests);
        ActivityLog::shared().record("weatherRefresh");
    }

    NS::Dictionary weatherData() const
    {
        const auto& weather = DeviceState::shared().weather;
        if (!weather)
            return {};
        const auto data = NS::MutableDictionary::make();
        for (const auto& [key, member] : weatherMembers) {
            if (const NS::Object value = objectOrNil((*weather).*member))
                data.setObject(value, NS::String::fromUTF8(key));
        }
        if (const UI::Image image = weather->image.empty() ? UI::Image() : imageOnHost(weather->image))
            data.setObject(image, "conditionsImage"_ns);
        return data;
    }

    NS::Object lowestTemperature() const { return reported(&WeatherReport::low); }
    NS::Object highestTemperature() const { return reported(&WeatherReport::high); }

private:
    static NS::Object reported(Value WeatherReport::*member)
    {
        const auto& weather = DeviceState::shared().weather;
        return weather ? objectOrNil((*weather).*member) : NS::Object();
    }
};

}

static const StandInClass weatherApp(
    "WeatherApp", "NSObject", BroughtBy{"/usr/lib/libweatherlyr.dylib"}, [](Binder<WeatherApp>& binder) {
        binder.classMethod<"sharedManager", &sharedObject<Weather::WeatherApp>>()
            .def<"refreshWeatherData", &WeatherApp::refreshWeatherData>()
            .def<"weatherData", &WeatherApp::weatherData>()
            .def<"lowestTemperature", &WeatherApp::lowestTemperature>()
            .def<"highestTemperature", &WeatherApp::highestTemperature>()
            .add();
    });

}
