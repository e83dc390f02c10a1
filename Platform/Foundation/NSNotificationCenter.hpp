// Notifications within the process.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace NS {

class NotificationCenter : public ObjC::Class_<NotificationCenter, Object, "NSNotificationCenter"> {
public:
    using Class_::Class_;

    static NotificationCenter defaultCenter() { return sendClass<NotificationCenter, "defaultCenter">(); }
    /// Sends `action` to the observer for every notification of that name. The observer is not kept: it has to be
    /// removed before it goes.
    void addObserver(const ObjC::Object& observer, SEL action, const String& name) const
    {
        send<void, "addObserver:selector:name:object:">(observer, action, name, ObjC::Object());
    }
    void removeObserver(const ObjC::Object& observer) const { send<void, "removeObserver:">(observer); }
    void postNotificationName(const String& name) const
    {
        send<void, "postNotificationName:object:">(name, ObjC::Object());
    }
};

}
