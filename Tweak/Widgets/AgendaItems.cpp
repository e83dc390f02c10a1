// Asks for alarms and events, and writes them in the user's words.
#include "Tweak/Widgets/AgendaItems.hpp"

#include "Platform/EventKit/EKEventStore.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/SpringBoard/SBScheduledAlarmObserver.hpp"
#include "Product/Names.hpp"
#include "Tweak/FixedFormatter.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"

namespace LYR {

namespace {

NS::String clockTime(const NS::Date& moment)
{
    return fixedFormatter(_twentyFour ? "HH:mm"_ns : "h:mm"_ns).stringFromDate(moment);
}

/// The half of the day in which the hour lies: midnight is AM, noon is PM.
NS::String markerOf(const NS::Calendar& calendar, const NS::Date& moment)
{
    return calendar.component(NS::CalendarUnit::hour, moment) < 12 ? "AM"_ns : "PM"_ns;
}

NS::String joined(const NS::String& first, const NS::String& second)
{
    if (second.length() == 0)
        return first;
    return first.stringByAppendingString(" "_ns).stringByAppendingString(second);
}

/// Where an event stands among others: by its start; one that lasts all day behind those of the day that have a time.
double rankOf(const EK::Event& event, const NS::Calendar& calendar)
{
    auto start = event.startDate();
    if (event.isAllDay()) {
        if (auto nextDay = calendar.dateByAddingUnit(NS::CalendarUnit::day, 1, start))
            return nextDay.timeIntervalSinceReferenceDate() - 1;
    }
    return start.timeIntervalSinceReferenceDate();
}

/// The calendar answers in no order.
EK::Event earliest(const NS::Array& events)
{
    auto calendar = NS::Calendar::currentCalendar();
    EK::Event first;
    double firstRank = 0;
    for (unsigned long i = 0; i < events.count(); ++i) {
        auto event = events.at<EK::Event>(i);
        double rank = rankOf(event, calendar);
        if (!first || rank < firstRank) {
            first = event;
            firstRank = rank;
        }
    }
    return first;
}

/// The user is never asked. Where nobody has asked yet, the system may answer all the same.
bool mayReadEvents()
{
    auto status = EK::EventStore::authorizationStatusForEvents();
    return status != EK::AuthorizationStatus::restricted && status != EK::AuthorizationStatus::denied;
}

/// The way to the calendar, opened when it is first needed. It is dear, so there is one for the process.
constinit ObjC::Variable<EK::EventStore> eventStore;

EK::Event firstEvent(const NS::Date& now)
{
    const int days = _rangeEvent.intValue();
    if (days <= 0 || !mayReadEvents())
        return {};
    auto end = NS::Calendar::currentCalendar().dateByAddingUnit(NS::CalendarUnit::day, days, now);
    if (!end)
        return {};
    if (!eventStore)
        eventStore = EK::EventStore::make();
    return earliest(eventStore->eventsMatchingPredicate(eventStore->predicateForEvents(now, end)));
}

}

NS::String AlarmItem::text() const
{
    return joined(time, marker);
}

AlarmItem nextAlarm()
{
    auto alarm = SB::ScheduledAlarmObserver::sharedInstance().alarmManager().cache().nextAlarm();
    auto fireDate = alarm.nextFireDate();
    if (!fireDate)
        return {"No Alarms"_ns, {}};
    auto gregorian = NS::Calendar::calendarWithIdentifier("gregorian"_ns);
    return {clockTime(fireDate), _twentyFour ? NS::String() : markerOf(gregorian, fireDate)};
}

NS::String firstEventText(const NS::Date& now)
{
    auto event = firstEvent(now);
    if (!event)
        return "No events today"_ns;
    auto title = event.title();
    auto start = event.startDate();
    if (event.isAllDay() || !start)
        return title ? title : ""_ns;
    auto time = clockTime(start);
    if (!_twentyFour)
        time = time.stringByAppendingString(markerOf(NS::Calendar::currentCalendar(), start));
    return joined(time, title);
}

UI::Image alarmIcon()
{
    return resourceIcon(LYR_PREFIX LYR_RESOURCES "SS16/alarm.png"_ns);
}

UI::Image eventIcon()
{
    return resourceIcon(LYR_PREFIX LYR_RESOURCES "SS16/calendar.png"_ns);
}

}
