// Which JSON stands for which object. Colours are told in components, everything unknown as its description.
#include "Simulator/Control/Domains/RuntimeValues.hpp"

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Platform/Foundation/NSTimer.hpp"
#include "Platform/UIKit/UIView.hpp"
#include "Simulator/Base/ColourText.hpp"
#include "Simulator/Control/Types.hpp"
#include "Simulator/Device/DeviceState.hpp"


namespace Simulator::Control {

namespace {

std::string textOf(const NS::String& text)
{
    return std::string(text.utf8());
}

Json jsonOfNumber(const NS::Number& number)
{
    const std::string_view type = number.send<const char*, "objCType">();
    // GNUstep's truth values are numbers of its own class; their type alone does not tell.
    const std::string className = class_getName(object_getClass(number.raw()));
    if (type == "B" || className.find("Bool") != std::string::npos)
        return number.boolValue();
    if (type == "d" || type == "f")
        return number.doubleValue();
    return number.longValue();
}

Json jsonOfColour(const UI::Color& color)
{
    CGFloat components[4]{};
    color.getRed(&components[0], &components[1], &components[2], &components[3]);
    return textOfColour({components[0], components[1], components[2], components[3]});
}

Json jsonOfArray(const NS::Array& array)
{
    Json json = Json::array();
    for (unsigned long i = 0; i < array.count(); ++i)
        json.push_back(jsonOfObject(array.at<NS::Object>(i)));
    return json;
}

Json jsonOfDictionary(const NS::Dictionary& dictionary)
{
    Json json = Json::object();
    auto keys = dictionary.allKeys();
    for (unsigned long i = 0; i < keys.count(); ++i) {
        auto key = keys.at<NS::Object>(i);
        json[textOf(key.send<NS::String, "description">())] = jsonOfObject(dictionary.objectForKey<NS::Object>(key));
    }
    return json;
}

Json jsonOfOther(const NS::Object& object)
{
    Json json{{"class", class_getName(object_getClass(object.raw()))},
        {"description", textOf(object.send<NS::String, "description">())}};
    if (auto identifier = object.as<UI::View>().accessibilityIdentifier())
        json["id"] = textOf(identifier);
    if (auto timer = object.as<NS::Timer>())
        json["valid"] = timer.isValid();
    return json;
}

bool isColour(const std::string& text)
{
    return text.size() == 9 && text[0] == '#' && text.find_first_not_of("0123456789ABCDEF", 1) == std::string::npos;
}

NS::Object colourOfText(const std::string& text)
{
    auto component = [&](int i) { return std::stoi(text.substr(1 + 2 * i, 2), nullptr, 16) / 255.0; };
    return UI::Color::colorWithRed(component(0), component(1), component(2), component(3));
}

NS::Object objectOfText(const std::string& text)
{
    if (isColour(text))
        return colourOfText(text);
    if (localTime().accepts(text))
        return NS::Date::dateWithTimeIntervalSinceReferenceDate(*momentOfLocalTime(text));
    return NS::String::fromUTF8(text);
}

NS::Object objectOfNumber(const Json& json)
{
    if (json.is_boolean())
        return NS::Number::numberWithBool(json);
    return json.is_number_integer() ? NS::Number::numberWithLong(json) : NS::Number::numberWithDouble(json);
}

NS::Object objectOfMembers(const Json& json)
{
    auto dictionary = NS::MutableDictionary::dictionary();
    for (const auto& [key, value] : json.items())
        if (auto object = objectOfJson(value))
            dictionary.setObject(object, NS::String::fromUTF8(key));
    return dictionary;
}

NS::Object objectOfElements(const Json& json)
{
    auto array = NS::MutableArray::make();
    for (const Json& element : json)
        if (auto object = objectOfJson(element))
            array.addObject(object);
    return array;
}

}

Json jsonOfObject(const NS::Object& object)
{
    if (!object)
        return nullptr;
    if (auto text = object.as<NS::String>())
        return textOf(text);
    if (auto number = object.as<NS::Number>())
        return jsonOfNumber(number);
    if (auto date = object.as<NS::Date>())
        return localTimeText(date.timeIntervalSinceReferenceDate());
    if (auto color = object.as<UI::Color>())
        return jsonOfColour(color);
    if (auto array = object.as<NS::Array>())
        return jsonOfArray(array);
    if (auto dictionary = object.as<NS::Dictionary>())
        return jsonOfDictionary(dictionary);
    return jsonOfOther(object);
}

NS::Object objectOfJson(const Json& json)
{
    switch (json.type()) {
    case Json::value_t::string:
        return objectOfText(json);
    case Json::value_t::boolean:
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
    case Json::value_t::number_float:
        return objectOfNumber(json);
    case Json::value_t::array:
        return objectOfElements(json);
    case Json::value_t::object:
        if (json.size() == 1 && json.contains("text") && json.at("text").is_string())
            return NS::String::fromUTF8(json.at("text").get<std::string>());
        return objectOfMembers(json);
    default:
        return {};
    }
}

}
