// Everything that one refresh shows besides the time and the date itself: read when it is asked for, and once.
#pragma once

#include "Tweak/Widgets/AgendaItems.hpp"
#include "Tweak/Widgets/WeatherItems.hpp"

#include <optional>

namespace LYR {

/// What nobody asks for costs the phone nothing.
class Items {
public:
    explicit Items(const NS::Date& moment)
        : moment_(moment)
    {
    }

    const WeatherItems& weather()
    {
        if (!weather_)
            weather_ = weatherItems();
        return *weather_;
    }
    const AlarmItem& alarm()
    {
        if (!alarm_)
            alarm_ = nextAlarm();
        return *alarm_;
    }
    const NS::String& event()
    {
        if (!event_)
            event_ = firstEventText(moment_);
        return *event_;
    }

private:
    NS::Date moment_;
    std::optional<WeatherItems> weather_;
    std::optional<AlarmItem> alarm_;
    std::optional<NS::String> event_;
};

}
