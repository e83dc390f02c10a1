// The next alarm and the first event of the calendar, as texts and icons for the date line and the strip.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace LYR {

struct AlarmItem {
    /// "6:30", or "06:30" in 24-hour time; "No Alarms" without one.
    NS::String time;
    /// "AM" or "PM"; nil in 24-hour time and without an alarm.
    NS::String marker;

    /// "6:30 AM", "06:30", "No Alarms".
    NS::String text() const;
};

AlarmItem nextAlarm();
/// The first event from `now` on within `rangeEvent` days: "9:30PM Dentist", "21:30 Dentist", the bare title of one
/// that lasts all day, "No events today". Without a day to look at, the calendar is not asked.
NS::String firstEventText(const NS::Date& now);

UI::Image alarmIcon();
UI::Image eventIcon();

}
