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
        : m_moment(moment)
    {
    }

    const WeatherItems& weather()
    {
        if (!m_weather)
            m_weather = weatherItems();
        return *m_weather;
    }
    const AlarmItem& alarm()
    {
        if (!m_alarm)
            m_alarm = nextAlarm();
        return *m_alarm;
    }
    const NS::String& event()
    {
        if (!m_event)
            m_event = firstEventText(m_moment);
        return *m_event;
    }

private:
    NS::Date m_moment;
    std::optional<WeatherItems> m_weather;
    std::optional<AlarmItem> m_alarm;
    std::optional<NS::String> m_event;
};

}
