// device.*: battery, weather, alarm, calendar, appearance, language.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Text/LocaleNames.hpp"

#include <array>
#include <cmath>

namespace Simulator::Control {

namespace {

struct BatteryStateName {
    const char* name;
    BatteryState state;
};
constexpr std::array batteryStates{BatteryStateName{"unknown", BatteryState::unknown},
    BatteryStateName{"unplugged", BatteryState::unplugged}, BatteryStateName{"charging", BatteryState::charging},
    BatteryStateName{"full", BatteryState::full}};

struct WeatherMember {
    const char* name;
    WeatherReport::Value WeatherReport::*value;
};
constexpr std::array weatherMembers{WeatherMember{"temperature", &WeatherReport::temperature},
    WeatherMember{"high", &WeatherReport::high}, WeatherMember{"low", &WeatherReport::low},
    WeatherMember{"conditions", &WeatherReport::conditions}, WeatherMember{"location", &WeatherReport::location},
    WeatherMember{"sunrise", &WeatherReport::sunrise}, WeatherMember{"sunset", &WeatherReport::sunset}};

void applyBattery(const Json& json)
{
    Battery& battery = DeviceState::shared().battery;
    if (json.contains("level"))
        battery.level = json.at("level").is_null() ? std::nan("") : json.at("level").get<double>();
    battery.lowPower = json.value("lowPower", battery.lowPower);
    for (const auto& [name, state] : batteryStates)
        if (json.contains("state") && json.at("state") == name)
            battery.state = state;
}

Json describeBattery()
{
    const Battery& battery = DeviceState::shared().battery;
    Json json{{"level", battery.level}, {"lowPower", battery.lowPower}};
    for (const auto& [name, state] : batteryStates)
        if (state == battery.state)
            json["state"] = name;
    return json;
}

void applyWeather(const Json& json)
{
    DeviceState::shared().weather.reset();
    if (json.is_null())
        return;
    WeatherReport report;
    for (const auto& [name, value] : weatherMembers)
        report.*value = json.value(name, Json());
    report.image = json.value("image", "");
    DeviceState::shared().weather = report;
}

Json describeWeather()
{
    const auto& weather = DeviceState::shared().weather;
    if (!weather)
        return nullptr;
    Json json = Json::object();
    for (const auto& [name, value] : weatherMembers)
        if (!((*weather).*value).is_null())
            json[name] = (*weather).*value;
    if (!weather->image.empty())
        json["image"] = weather->image;
    return json;
}

void applyEvents(const Json& json)
{
    auto& events = DeviceState::shared().events;
    events.clear();
    for (const Json& event : json)
        events.push_back(
            {event.at("title").is_null() ? std::nullopt : std::optional(event.at("title").get<std::string>()),
                event.at("start"), event.value("allDay", false)});
}

Json describeEvents()
{
    Json json = Json::array();
    for (const CalendarEvent& event : DeviceState::shared().events)
        json.push_back(
            {{"title", event.title ? Json(*event.title) : Json()}, {"start", event.start}, {"allDay", event.allDay}});
    return json;
}

void applyAlarm(const Json& json)
{
    auto& alarm = DeviceState::shared().alarm;
    alarm = json.is_null() ? std::nullopt : std::optional(json.get<std::string>());
}

void applyLanguages(const Json& json)
{
    auto& languages = PhoneLocale::shared().languages;
    languages.clear();
    for (const std::string name : json)
        languages.push_back(languageName(name));
}

}

void applyDevice(const Json& parameters)
{
    using Apply = void (*)(const Json&);
    const std::pair<const char*, Apply> members[] = {
        {"battery", applyBattery},
        {"weather", applyWeather},
        {"events", applyEvents},
        {"alarm", applyAlarm},
        {"style",
            [](const Json& json) {
                DeviceState::shared().style = json == "dark" ? InterfaceStyle::dark : InterfaceStyle::light;
            }},
        {"locale", [](const Json& json) { PhoneLocale::shared().locale = localeName(json.get<std::string>()); }},
        {"timeZone", [](const Json& json) { PhoneLocale::shared().timeZone = json; }},
        {"languages", applyLanguages},
        {"twentyFourHour",
            [](const Json& json) {
                PhoneLocale::shared().twentyFourHour = json.is_null() ? std::nullopt : std::optional(json.get<bool>());
            }},
        {"flashlight", [](const Json& json) { DeviceState::shared().hasFlashlight = json; }},
        {"camera", [](const Json& json) { DeviceState::shared().hasCamera = json; }},
        {"calendarAccess", [](const Json& json) { DeviceState::shared().grantsCalendar = json == "granted"; }},
    };
    for (const auto& [name, apply] : members)
        if (parameters.contains(name))
            apply(parameters.at(name));
}

Json describeDevice()
{
    const DeviceState& device = DeviceState::shared();
    const PhoneLocale& locale = PhoneLocale::shared();
    return {{"battery", describeBattery()}, {"weather", describeWeather()}, {"events", describeEvents()},
        {"alarm", device.alarm ? Json(*device.alarm) : Json()},
        {"style", device.style == InterfaceStyle::dark ? "dark" : "light"}, {"locale", locale.locale},
        {"timeZone", locale.timeZone}, {"languages", locale.languages},
        {"twentyFourHour", locale.twentyFourHour ? Json(*locale.twentyFourHour) : Json()},
        {"flashlight", device.hasFlashlight}, {"camera", device.hasCamera},
        {"calendarAccess", device.grantsCalendar ? "granted" : "denied"}};
}

void addDeviceMethods(PhoneContext& context)
{
    context.add("device.set", [&context](const Json& parameters) {
        applyDevice(parameters);
        if (parameters.contains("style"))
            context.shell.setStyle(DeviceState::shared().style);
        context.shell.deviceChanged();
        return Json::object();
    });
}

}
