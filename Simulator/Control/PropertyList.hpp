// Property lists as files on the phone hold them, made from and told by their bytes.
#pragma once

#include "Simulator/Control/Envelope.hpp"

namespace Simulator::Control {

// XML, for a value that holds neither null nor a NUL in a text.
std::string propertyListXml(const Json&);

// Whether the bytes are an XML or binary property list with a dictionary at its root.
bool isPropertyListDictionary(std::string_view bytes);

}
