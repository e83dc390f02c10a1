// settings.*, colours.*, notify.*: what the settings pane does.
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/Control/Domains/RuntimeValues.hpp"

#include "Simulator/Companions/DarwinNotifications.hpp"
#include "Simulator/Companions/HBPreferences.hpp"
#include "Simulator/Companions/PropertyListValues.hpp"
#include "Simulator/Control/RootFolder.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

namespace Simulator::Control {

namespace {

constexpr const char* domain = LYR_SETTINGS_STORE;
constexpr const char* settingsChanged = LYR_SETTINGS_CHANGED;
constexpr const char* coloursChanged = LYR_COLOURS_CHANGED;

/// The members that were asked for, or all.
Json selected(const Json& values, const Json& parameters)
{
    if (!parameters.contains("keys"))
        return values;
    Json chosen = Json::object();
    for (const std::string key : parameters.at("keys"))
        if (values.contains(key))
            chosen[key] = values.at(key);
    return chosen;
}

Json boundJson(const std::string& key)
{
    auto bound = boundValue(key);
    if (!bound)
        throwNotFound("no setting " + quote(key) + " has been bound");
    return bound->kind == BoundValue::Kind::boolean ? Json(bound->boolean) : jsonOfObject(bound->object);
}

Json storedColours()
{
    return jsonOfValue(dictionaryInFile(std::string(coloursPath)));
}

void storeColours(const Json& values)
{
    Json all = storedColours();
    all.update(values);
    auto bytes = xmlOfDictionary(valueOfJson(all).as<NS::Dictionary>());
    if (int error = PhoneFiles::shared().put(coloursPath, bytes))
        throw ProtocolError(ErrorCode::internal, "cannot write the colour file: " + std::string(strerror(error)));
}

void announce(const Json& parameters, const char* notification)
{
    if (parameters.value("notify", true))
        postDarwinNotification(notification);
}

}

void addSettingsMethods(PhoneContext& context)
{
    context.add("settings.get", [](const Json& parameters) {
        return Json{{"values", selected(jsonOfValue(storedValues(domain)), parameters)}};
    });
    context.add("settings.set", [](const Json& parameters) {
        storeValues(domain, valueOfJson(parameters.at("values")).as<NS::Dictionary>());
        announce(parameters, settingsChanged);
        return Json::object();
    });
    context.add("settings.bound", [](const Json& parameters) {
        return Json{{"value", boundJson(parameters.at("key"))}};
    });
    context.add("colours.get", [](const Json& parameters) {
        return Json{{"values", selected(storedColours(), parameters)}};
    });
    context.add("colours.set", [](const Json& parameters) {
        storeColours(parameters.at("values"));
        announce(parameters, coloursChanged);
        return Json::object();
    });
    context.add("notify.post", [](const Json& parameters) {
        postDarwinNotification(parameters.at("name"));
        return Json::object();
    });
}

}
