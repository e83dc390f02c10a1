// Objects, JSON and the bytes of property lists, each made of the other.
#include "Simulator/Companions/PropertyListValues.hpp"

#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/PropertyListObjects.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

#include <cmath>

namespace Simulator {

using Json = nlohmann::ordered_json;

namespace {

/// What each kind of property-list value is as JSON.
struct JsonOfKind {
    Json operator()(const std::string& text) const { return text; }
    Json operator()(bool flag) const { return flag; }
    Json operator()(std::int64_t number) const { return number; }
    Json operator()(double number) const { return std::isfinite(number) ? Json(number) : Json(); }
    Json operator()(const PropertyListDate&) const { return {}; }
    Json operator()(const PropertyListData&) const { return {}; }
    Json operator()(const PropertyListArray& array) const
    {
        Json elements = Json::array();
        for (const PropertyList& element : array)
            elements.push_back(std::visit(*this, element.value));
        return elements;
    }
    Json operator()(const PropertyListDictionary& dictionary) const
    {
        Json members = Json::object();
        for (const auto& [key, member] : dictionary)
            members[key] = std::visit(*this, member.value);
        return members;
    }
};

std::optional<PropertyList> listOfJson(const Json& json, int depth);

PropertyListArray arrayOfJson(const Json& json, int depth)
{
    PropertyListArray array;
    for (const Json& element : json) {
        if (auto value = listOfJson(element, depth))
            array.push_back(std::move(*value));
    }
    return array;
}

PropertyListDictionary dictionaryOfJson(const Json& json, int depth)
{
    PropertyListDictionary dictionary;
    for (const auto& [key, member] : json.items()) {
        if (auto value = listOfJson(member, depth))
            dictionary[key] = std::move(*value);
    }
    return dictionary;
}

std::optional<PropertyList> listOfJson(const Json& json, int depth)
{
    if (depth > deepestPropertyList)
        return std::nullopt;
    switch (json.type()) {
    case Json::value_t::string:
        return PropertyList{json.get<std::string>()};
    case Json::value_t::boolean:
        return PropertyList{json.get<bool>()};
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return PropertyList{json.get<std::int64_t>()};
    case Json::value_t::number_float:
        return PropertyList{json.get<double>()};
    case Json::value_t::array:
        return PropertyList{arrayOfJson(json, depth + 1)};
    case Json::value_t::object:
        return PropertyList{dictionaryOfJson(json, depth + 1)};
    default:
        return std::nullopt;
    }
}

}

Json jsonOfValue(const NS::Object& value)
{
    const auto list = propertyListOf(value);
    return list ? std::visit(JsonOfKind(), list->value) : Json();
}

NS::Object valueOfJson(const Json& json)
{
    const auto list = listOfJson(json, 0);
    return list ? NS::Object(objectOf(*list)) : NS::Object();
}

NS::Dictionary dictionaryInFile(const std::string& phonePath)
{
    const OwnWork own;
    const auto file = PhoneFiles::shared().read(phonePath);
    const auto list = file ? readPropertyList(file.value) : std::nullopt;
    const NS::Object object(list ? objectOf(*list) : ObjC::Object());
    const auto dictionary = object.as<NS::Dictionary>();
    return dictionary ? dictionary : NS::MutableDictionary::make();
}

std::string xmlOfDictionary(const NS::Dictionary& values)
{
    const auto list = propertyListOf(values);
    return list ? writeXmlPropertyList(*list) : std::string();
}

}
