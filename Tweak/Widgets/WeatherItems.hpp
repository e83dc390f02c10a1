// What the weather library has to say, as texts and icons for the date line and the strip.
#pragma once

#include "Platform/Foundation/NSString.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace LYR {

/// One reading of the weather library. Nil where there is none.
struct WeatherItems {
    /// As the library gives it, with its sign of a degree.
    NS::String temperature;
    /// "H:21 L:12".
    NS::String highLow;
    NS::String condition;
    NS::String location;
    /// A template image where `colourIconWeather` is on, so that it takes the text's colour.
    UI::Image icon;

    /// Without the sign of a degree.
    NS::String plainTemperature;
    /// "H:21" and "L:12".
    NS::String high;
    NS::String low;
    NS::String sunrise;
    NS::String sunset;

    /// The pair of icons that marks where the temperature stands between the day's low and high, as paths of files.
    NS::String scaleIcon;
    NS::String markIcon;
};

/// Asks the library for fresh data, and reads what it has.
WeatherItems weatherItems();

}
