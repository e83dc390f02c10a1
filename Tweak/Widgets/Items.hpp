// What the date line can show besides the date: weather, the next alarm, the first event. Nil where there is none.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace LYR {

/// One reading of the weather library.
struct WeatherItems {
    NS::String temperature;
    NS::String highLow;
    NS::String condition;
    NS::String location;
    /// A template image where `colourIconWeather` is on, so that it takes the text's colour.
    UI::Image icon;
};

WeatherItems weatherItems();
NS::String nextAlarmText();
/// The first event from `now` on within `rangeEvent` days.
NS::String firstEventText(const NS::Date& now);

UI::Image alarmIcon();
UI::Image eventIcon();

}
