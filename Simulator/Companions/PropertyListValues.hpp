// Settings as objects, as JSON and in property-list files of the phone.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"

#include <nlohmann/json.hpp>

#include <string>

namespace Simulator {

/// Text, numbers, truth values, arrays and dictionaries; null for anything else (dates, data, other objects, nil).
nlohmann::ordered_json jsonOfValue(const NS::Object& value);
/// Nil for null; a null within is left out.
NS::Object valueOfJson(const nlohmann::ordered_json& json);

/// The dictionary in a file on the phone, of whichever format; an empty one if there is none to be read.
NS::Dictionary dictionaryInFile(const std::string& phonePath);
/// As the bytes of an XML property list; empty if it holds what has no place in one.
std::string xmlOfDictionary(const NS::Dictionary& values);

}
