// The user's calendar: the device's events by interval.
#include "Platform/EventKit/EKEventStore.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>

namespace Simulator {

namespace {

class EventPredicate : public ObjC::Class_<EventPredicate, NS::Object, "EKEventPredicate"> {
public:
    using Class_::Class_;
};

constexpr double usualDuration = 3600;

struct Occurrence {
    std::optional<std::string> title;
    double start;
    double end;
    bool allDay;
};

/// An all-day event lasts from midnight to midnight; any other one an hour. An event without a date is none.
std::optional<Occurrence> occurrenceOf(const CalendarEvent& event)
{
    const auto moment = momentOfLocalTime(event.start);
    if (!moment)
        return std::nullopt;
    if (event.allDay)
        return Occurrence{event.title, startOfDay(*moment), startOfNextDay(*moment), true};
    return Occurrence{event.title, *moment, *moment + usualDuration, false};
}

class EKEvent : public StandIn {
public:
    using Root = EKEvent;

    static EK::Event make(const Occurrence& occurrence)
    {
        const auto event = EK::Event::make();
        standIn<EKEvent>(event.raw()).m_occurrence = occurrence;
        return event;
    }
    NS::String title() const { return m_occurrence.title ? NS::String::fromUTF8(*m_occurrence.title) : NS::String(); }
    NS::Date startDate() const { return NS::Date::dateWithTimeIntervalSinceReferenceDate(m_occurrence.start); }
    NS::Date endDate() const { return NS::Date::dateWithTimeIntervalSinceReferenceDate(m_occurrence.end); }
    bool isAllDay() const { return m_occurrence.allDay; }

private:
    Occurrence m_occurrence;
};

class EKEventPredicate : public StandIn {
public:
    using Root = EKEventPredicate;

    /// An interval without length holds nothing.
    bool matches(const Occurrence& occurrence) const
    {
        return start < end && occurrence.start < end && occurrence.end > start;
    }

    double start = 0;
    double end = 0;
};

class EKEventStore : public StandIn {
public:
    using Root = EKEventStore;

    /// Of events and reminders alike: 2 for denied, 3 for granted.
    static long authorizationStatus(unsigned long) { return DeviceState::shared().grantsCalendar ? 3 : 2; }

    void init() { ExtensionCounts::shared().add(Count::calendarStores); }

    NS::Object predicateForEvents(const NS::Date& start, const NS::Date& end, const NS::Object&)
    {
        const auto predicate = EventPredicate::make();
        auto& interval = standIn<EKEventPredicate>(predicate.raw());
        interval.start = start.timeIntervalSinceReferenceDate();
        interval.end = end.timeIntervalSinceReferenceDate();
        return predicate;
    }

    NS::Array eventsMatchingPredicate(const NS::Object& predicate)
    {
        ExtensionCounts::shared().add(Count::calendarQueries);
        const auto events = NS::MutableArray::make();
        const auto* interval = standInOrNull<EKEventPredicate>(predicate);
        if (!interval || !DeviceState::shared().grantsCalendar)
            return events;
        std::vector<Occurrence> found;
        for (const CalendarEvent& event : DeviceState::shared().events) {
            const auto occurrence = occurrenceOf(event);
            if (occurrence && interval->matches(*occurrence))
                found.push_back(*occurrence);
        }
        // In no order, the platform says; so never in the one that a reader may have hoped for.
        std::ranges::stable_sort(found, std::ranges::greater(), &Occurrence::start);
        for (const Occurrence& occurrence : found)
            events.addObject(EKEvent::make(occurrence));
        return events;
    }
};

}

static const StandInClass ekCalendarItem("EKCalendarItem", "NSObject", [](Binder<EKEvent>& binder) { binder.add(); });

static const StandInClass ekEvent("EKEvent", "EKCalendarItem", [](Binder<EKEvent>& binder) {
    binder.def<"title", &EKEvent::title>()
        .def<"startDate", &EKEvent::startDate>()
        .def<"endDate", &EKEvent::endDate>()
        .def<"isAllDay", &EKEvent::isAllDay>()
        .add();
});

static const StandInClass ekEventPredicate(
    "EKEventPredicate", "NSObject", [](Binder<EKEventPredicate>& binder) { binder.add(); });

static const StandInClass ekEventStore("EKEventStore", "NSObject", [](Binder<EKEventStore>& binder) {
    binder.classMethod<"authorizationStatusForEntityType:", &EKEventStore::authorizationStatus>()
        .init<"init", &EKEventStore::init>()
        .def<"predicateForEventsWithStartDate:endDate:calendars:", &EKEventStore::predicateForEvents>()
        .def<"eventsMatchingPredicate:", &EKEventStore::eventsMatchingPredicate>()
        .add();
});

}
