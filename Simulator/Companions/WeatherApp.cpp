// The weather library: the device's weather as the dictionary that it gives out.
#include "Platform/Companions/WeatherApp.hpp"

#include "Platform/UIKit/UIImage.hpp"
#include "Simulator/Companions/Registrations.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/DeviceState.hpp"

#include <fstream>
#include <iterator>

namespace Simulator {

namespace {

struct WeatherText {
    const char* key;
    std::string WeatherReport::*member;
};

constexpr WeatherText weatherTexts[] = {
    {"location", &WeatherReport::location},
    {"conditions", &WeatherReport::conditions},
    {"temperature", &WeatherReport::temperature},
    {"sunrise", &WeatherReport::sunrise},
    {"sunset", &WeatherReport::sunset},
};

NS::String textOrNil(const std::string& text)
{
    return text.empty() ? NS::String() : NS::String::fromUTF8(text);
}

/// The picture of the conditions lies on the host.
UI::Image imageOnHost(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    return bytes.empty() ? UI::Image() : UI::Image::imageWithData(NS::Data::dataWithBytes(bytes.data(), bytes.size()));
}

class WeatherApp : public StandIn {
public:
    using Root = WeatherApp;

    static Weather::WeatherApp sharedManager()
    {
        static ObjC::Variable<Weather::WeatherApp> manager;
        if (!manager)
            manager = Weather::WeatherApp::make();
        return manager;
    }

    void refreshWeatherData() { ActivityLog::shared().record("weatherRefresh"); }

    NS::Dictionary weatherData() const
    {
        const auto& weather = DeviceState::shared().weather;
        if (!weather)
            return {};
        const auto data = NS::MutableDictionary::make();
        for (const auto& [key, member] : weatherTexts) {
            if (const NS::String value = textOrNil((*weather).*member))
                data.setObject(value, NS::String::fromUTF8(key));
        }
        if (const UI::Image image = weather->image.empty() ? UI::Image() : imageOnHost(weather->image))
            data.setObject(image, "conditionsImage"_ns);
        return data;
    }

    NS::String lowestTemperature() const { return reported(&WeatherReport::low); }
    NS::String highestTemperature() const { return reported(&WeatherReport::high); }

private:
    static NS::String reported(std::string WeatherReport::*member)
    {
        const auto& weather = DeviceState::shared().weather;
        return weather ? textOrNil((*weather).*member) : NS::String();
    }
};

}

void registerWeatherApp()
{
    Binder<WeatherApp>("WeatherApp", "NSObject")
        .classMethod<"sharedManager", &WeatherApp::sharedManager>()
        .def<"refreshWeatherData", &WeatherApp::refreshWeatherData>()
        .def<"weatherData", &WeatherApp::weatherData>()
        .def<"lowestTemperature", &WeatherApp::lowestTemperature>()
        .def<"highestTemperature", &WeatherApp::highestTemperature>()
        .add();
}

}
