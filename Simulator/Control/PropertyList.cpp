// Property lists made from JSON.
#include "Simulator/Control/PropertyList.hpp"

#include "Simulator/Text/PropertyList.hpp"

#include <limits>

namespace Simulator::Control {

namespace {

PropertyList listOf(const Json& value)
{
    switch (value.type()) {
    case Json::value_t::object: {
        PropertyListDictionary dictionary;
        for (const auto& [key, member] : value.items())
            dictionary.emplace(key, listOf(member));
        return {std::move(dictionary)};
    }
    case Json::value_t::array: {
        PropertyListArray array;
        for (const Json& element : value)
            array.push_back(listOf(element));
        return {std::move(array)};
    }
    case Json::value_t::string:
        return {value.get<std::string>()};
    case Json::value_t::boolean:
        return {value.get<bool>()};
    case Json::value_t::number_integer:
        return {value.get<std::int64_t>()};
    case Json::value_t::number_unsigned:
        if (value.get<std::uint64_t>() <= std::numeric_limits<std::int64_t>::max())
            return {value.get<std::int64_t>()};
        [[fallthrough]];
    case Json::value_t::number_float:
        return {value.get<double>()};
    default:
        throw ProtocolError(ErrorCode::badParameters, "a property list cannot hold " + quote(value));
    }
}

}

std::string propertyListXml(const Json& value)
{
    return writeXmlPropertyList(listOf(value));
}

std::optional<std::vector<std::string>> propertyListKeys(std::string_view bytes)
{
    auto list = readXmlPropertyList(bytes);
    if (!list)
        list = readBinaryPropertyList(bytes);
    const auto* dictionary = list ? std::get_if<PropertyListDictionary>(&list->value) : nullptr;
    if (!dictionary)
        return std::nullopt;
    std::vector<std::string> keys;
    for (const auto& [key, value] : *dictionary)
        keys.push_back(key);
    return keys;
}

bool isPropertyListDictionary(std::string_view bytes)
{
    return propertyListKeys(bytes).has_value();
}

}
