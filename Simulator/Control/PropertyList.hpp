// Property lists as files on the phone hold them, made from and told by their bytes.
#pragma once

#include "Simulator/Control/Envelope.hpp"

namespace Simulator::Control {

/// XML, for a value that holds neither null nor a NUL in a text.
std::string propertyListXml(const Json&);

/// The keys of the dictionary at the root of an XML or binary property list; nothing for any other bytes.
std::optional<std::vector<std::string>> propertyListKeys(std::string_view bytes);
bool isPropertyListDictionary(std::string_view bytes);

}
