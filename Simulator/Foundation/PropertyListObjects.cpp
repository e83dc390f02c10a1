// Converts property lists to objects and back.
#include "Simulator/Foundation/PropertyListObjects.hpp"

#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/Foundation/Texts.hpp"

namespace Simulator {

namespace {

struct ObjectMaker {
    bool isMutable;

    ObjC::Object operator()(const std::string& text) const { return stringOf(text); }
    ObjC::Object operator()(bool value) const { return NS::Number::numberWithBool(value); }
    ObjC::Object operator()(std::int64_t value) const { return NS::Number::numberWithLong(value); }
    ObjC::Object operator()(double value) const { return NS::Number::numberWithDouble(value); }
    ObjC::Object operator()(const PropertyListDate& date) const
    {
        return NS::Date::dateWithTimeIntervalSinceReferenceDate(date.secondsSince2001);
    }
    ObjC::Object operator()(const PropertyListData& data) const
    {
        return NS::Data::dataWithBytes(data.bytes.data(), data.bytes.size());
    }
    ObjC::Object operator()(const PropertyListArray& array) const
    {
        const NS::MutableArray result = NS::MutableArray::make();
        for (const auto& element : array)
            result.addObject(objectOf(element, isMutable));
        return isMutable ? ObjC::Object(result) : result.send<ObjC::Object, "copy">();
    }
    ObjC::Object operator()(const PropertyListDictionary& dictionary) const
    {
        const NS::MutableDictionary result = NS::MutableDictionary::make();
        for (const auto& [key, value] : dictionary)
            result.setObject(objectOf(value, isMutable), stringOf(key));
        return isMutable ? ObjC::Object(result) : result.send<ObjC::Object, "copy">();
    }
};

std::optional<PropertyList> listOf(const ObjC::Object& object, int depth);

PropertyList listOfNumber(const NS::Number& number)
{
    if (isBoolean(number))
        return {number.boolValue()};
    const char type = *number.send<const char*, "objCType">();
    return type == 'f' || type == 'd' ? PropertyList{number.doubleValue()}
                                      : PropertyList{std::int64_t{number.longValue()}};
}

std::optional<PropertyList> listOfArray(const NS::Array& array, int depth)
{
    PropertyListArray result;
    for (unsigned long index = 0; index < array.count(); ++index) {
        auto element = listOf(array.send<ObjC::Object, "objectAtIndex:">(index), depth + 1);
        if (!element)
            return std::nullopt;
        result.push_back(std::move(*element));
    }
    return PropertyList{std::move(result)};
}

std::optional<PropertyList> listOfDictionary(const NS::Dictionary& dictionary, int depth)
{
    const NS::Array keys = dictionary.allKeys();
    PropertyListDictionary result;
    for (unsigned long index = 0; index < keys.count(); ++index) {
        const NS::String key = keys.at<NS::String>(index);
        auto value = key ? listOf(dictionary.send<ObjC::Object, "objectForKey:">(key), depth + 1) : std::nullopt;
        if (!value)
            return std::nullopt;
        result.insert_or_assign(textOf(key), std::move(*value));
    }
    return PropertyList{std::move(result)};
}

std::optional<PropertyList> listOf(const ObjC::Object& object, int depth)
{
    if (depth > deepestPropertyList)
        return std::nullopt;
    if (const auto text = object.as<NS::String>())
        return PropertyList{textOf(text)};
    if (const auto number = object.as<NS::Number>())
        return listOfNumber(number);
    if (const auto date = object.as<NS::Date>())
        return PropertyList{PropertyListDate{date.timeIntervalSinceReferenceDate()}};
    if (const auto data = object.as<NS::Data>())
        return PropertyList{PropertyListData{std::string(static_cast<const char*>(data.bytes()), data.length())}};
    if (const auto array = object.as<NS::Array>())
        return listOfArray(array, depth);
    if (const auto dictionary = object.as<NS::Dictionary>())
        return listOfDictionary(dictionary, depth);
    return std::nullopt;
}

}

ObjC::Object objectOf(const PropertyList& list, bool isMutable)
{
    return std::visit(ObjectMaker{isMutable}, list.value);
}

std::optional<PropertyList> propertyListOf(const ObjC::Object& object)
{
    return listOf(object, 0);
}

bool isBoolean(const ObjC::Object& number)
{
    static const Class booleans = object_getClass(NS::Number::numberWithBool(true).raw());
    return number && object_getClass(number.raw()) == booleans;
}

}
