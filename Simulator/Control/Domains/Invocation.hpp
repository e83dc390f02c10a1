// One message sent by hand: arguments and result converted by the method's type encoding.
#pragma once

#include "Platform/Foundation/NSObject.hpp"
#include "Simulator/Control/Envelope.hpp"

namespace Simulator::Control {

/// Gives the object that an argument stands for.
using ObjectReader = std::function<NS::Object(const Json&)>;

/// Sends the message. Throws a ProtocolError if the object has no such method, or if an argument is not what the method
/// takes.
Json invoke(id target, const std::string& selectorName, const Json& arguments, bool ofSuperclass,
    const ObjectReader& readObject);

}
