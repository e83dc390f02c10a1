#include "Tweak/Widgets/Items.hpp"

#include "Platform/Companions/WeatherApp.hpp"
#include "Platform/EventKit/EKEventStore.hpp"
#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Platform/SpringBoard/SBScheduledAlarmObserver.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"

namespace LYR {

namespace {

NS::String clockTime(const NS::Date& moment)
{
    if (!moment)
        return {};
    auto formatter = NS::DateFormatter::formatter();
    formatter.setDateFormat(_twentyFour ? "HH:mm"_ns : "h:mm"_ns);
    return formatter.stringFromDate(moment);
}

/// Two texts with a space between them; nil unless both are there.
NS::String joined(const NS::String& first, const NS::String& second)
{
    if (!first || !second)
        return {};
    return first.stringByAppendingString(" "_ns).stringByAppendingString(second);
}

}

WeatherItems weatherItems()
{
    auto manager = Weather::WeatherApp::sharedManager();
    manager.refreshWeatherData();
    auto record = manager.weatherData();
    WeatherItems items;
    items.temperature = record.objectForKey<NS::String>("temperature"_ns);
    items.highLow = joined(manager.highestTemperature(), manager.lowestTemperature());
    items.condition = record.objectForKey<NS::String>("conditions"_ns);
    items.location = record.objectForKey<NS::String>("location"_ns);
    items.icon = record.objectForKey<UI::Image>("conditionsImage"_ns);
    if (_colourIconWeather)
        items.icon = templateImage(items.icon);
    return items;
}

NS::String nextAlarmText()
{
    auto alarm = SB::ScheduledAlarmObserver::sharedInstance().alarmManager().cache().nextAlarm();
    return clockTime(alarm.nextFireDate());
}

NS::String firstEventText(const NS::Date& now)
{
    auto store = EK::EventStore::make();
    auto end = NS::Calendar::currentCalendar().dateByAddingUnit(NS::CalendarUnit::day, _rangeEvent.intValue(), now);
    if (!end)
        return {};
    auto events = store.eventsMatchingPredicate(store.predicateForEvents(now, end));
    return events.firstObject<EK::Event>().title();
}

UI::Image alarmIcon()
{
    return templateImage(
        UI::Image::imageWithContentsOfFile("/Library/Application Support/lyr.bundle/SS16/alarm.png"_ns));
}

UI::Image eventIcon()
{
    return templateImage(
        UI::Image::imageWithContentsOfFile("/Library/Application Support/lyr.bundle/SS16/calendar.png"_ns));
}

}
