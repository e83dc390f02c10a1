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

class EventStore : public ObjC::Class_<EventStore, NS::Object, "EKEventStore"> {
public:
    using Class_::Class_;

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
