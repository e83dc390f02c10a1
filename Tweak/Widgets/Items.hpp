// Everything that one refresh shows besides the time and the date itself, read once.
#pragma once

#include "Tweak/Widgets/AgendaItems.hpp"
#include "Tweak/Widgets/WeatherItems.hpp"

namespace LYR {

struct Items {
    WeatherItems weather;
    AlarmItem alarm;
    NS::String event;
};

inline Items itemsAt(const NS::Date& moment)
{
    return {weatherItems(), nextAlarm(), firstEventText(moment)};
}

}
