// Objects as JSON and back, for messages that are sent by hand.
#pragma once

#include "Platform/Foundation/NSObject.hpp"
#include "Simulator/Control/Envelope.hpp"

namespace Simulator::Control {

/// Text, numbers, dates, colours, arrays and dictionaries as themselves; any other object as
/// `{"class", "id"?, "description"}`.
Json jsonOfObject(const NS::Object& object);

/// The reverse. A text in the form of a colour ("#RRGGBBAA") or of a time is one; `{"text": "…"}` is always text.
/// References to objects are not known here.
NS::Object objectOfJson(const Json& json);

}
