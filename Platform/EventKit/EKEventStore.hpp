// The user's calendar.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace EK {

class Event : public ObjC::Class_<Event, NS::Object, "EKEvent"> {
public:
    using Class_::Class_;

    NS::String title() const { return send<NS::String, "title">(); }
    NS::Date startDate() const { return send<NS::Date, "startDate">(); }
    bool isAllDay() const { return send<bool, "isAllDay">(); }
};

enum class AuthorizationStatus : long { notDetermined = 0, restricted = 1, denied = 2, authorized = 3 };

class EventStore : public ObjC::Class_<EventStore, NS::Object, "EKEventStore"> {
public:
    using Class_::Class_;

    /// Whether the user lets this process read events.
    static AuthorizationStatus authorizationStatusForEvents()
    {
        constexpr unsigned long events = 0;
        return AuthorizationStatus(sendClass<long, "authorizationStatusForEntityType:">(events));
    }
    /// `calendars` nil means all.
    NS::Object predicateForEvents(const NS::Date& start, const NS::Date& end) const
    {
        return send<NS::Object, "predicateForEventsWithStartDate:endDate:calendars:">(start, end, NS::Array());
    }
    NS::Array eventsMatchingPredicate(const NS::Object& predicate) const
    {
        return send<NS::Array, "eventsMatchingPredicate:">(predicate);
    }
};

}
