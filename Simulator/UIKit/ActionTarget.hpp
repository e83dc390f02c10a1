// Whom a control or a gesture tells, and by which message.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

namespace Simulator {

struct ActionTarget {
    /// Not retained, as on the phone. Nil: the first responder up from the sender that knows the message.
    id target = nullptr;
    SEL action = nullptr;
    bool operator==(const ActionTarget&) const = default;
};

/// Sends the message: with the sender and the event, as far as its selector takes arguments.
void sendAction(const ActionTarget& target, const ObjC::Object& sender, const NS::Object& event);

}
