// Reads the weather library's values, each of which may be missing.
#include "Tweak/Widgets/WeatherItems.hpp"

#include "Platform/Companions/WeatherApp.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Product/Names.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/TemplateImage.hpp"

namespace LYR {

namespace {

enum class End { low, high };

/// The temperature that lies so many degrees on from one of the day's ends has this pair of icons.
struct Indicator {
    End end;
    long degrees;
    const char* scale;
    const char* mark;
};

/// The first row that holds counts, so the low comes before the high where the day's range is small.
constexpr Indicator indicators[] = {
    {End::low, 0, "1", "a"},
    {End::low, 1, "3", "c"},
    {End::low, 2, "5", "e"},
    {End::low, 3, "7", "g"},
    {End::low, 4, "9", "i"},
    {End::low, 5, "11", "k"},
    {End::low, 6, "13", "m"},
    {End::high, -3, "15", "o"},
    {End::high, -2, "17", "q"},
    {End::high, -1, "19", "s"},
    {End::high, 0, "21", "u"},
};
constexpr Indicator middle = {End::low, 5, "11", "k"};

/// "--", the library's text for no data, counts as 0, as does any text that is no number.
const Indicator& indicatorFor(long temperature, long low, long high)
{
    for (const Indicator& row : indicators) {
        if (temperature - row.degrees == (row.end == End::low ? low : high))
            return row;
    }
    return middle;
}

NS::String indicatorPath(const char* name)
{
    return LYR_PREFIX LYR_RESOURCES "HL16/"_ns.stringByAppendingString(NS::String::fromUTF8(name))
        .stringByAppendingString(".png"_ns);
}

/// The text up to its sign of a degree.
NS::String withoutDegree(const NS::String& text)
{
    std::string_view characters = text.utf8();
    auto sign = characters.find("°");
    return sign == characters.npos ? text : NS::String::fromUTF8(characters.substr(0, sign));
}

NS::String labelled(const NS::String& label, const NS::String& temperature)
{
    return temperature ? label.stringByAppendingString(withoutDegree(temperature)) : NS::String();
}

/// Both with a space between them, or the one that there is.
NS::String joined(const NS::String& first, const NS::String& second)
{
    if (!first || !second)
        return first ? first : second;
    return first.stringByAppendingString(" "_ns).stringByAppendingString(second);
}

}

WeatherItems weatherItems()
{
    auto manager = Weather::WeatherApp::sharedManager();
    manager.refreshWeatherData();
    auto record = manager.weatherData().as<NS::Dictionary>();
    auto high = manager.highestTemperature().as<NS::String>();
    auto low = manager.lowestTemperature().as<NS::String>();

    WeatherItems items;
    items.temperature = record.objectForKey<NS::String>("temperature"_ns);
    items.plainTemperature = withoutDegree(items.temperature);
    items.high = labelled("H:"_ns, high);
    items.low = labelled("L:"_ns, low);
    items.highLow = joined(items.high, items.low);
    items.condition = record.objectForKey<NS::String>("conditions"_ns);
    items.location = record.objectForKey<NS::String>("location"_ns);
    items.sunrise = record.objectForKey<NS::String>("sunrise"_ns);
    items.sunset = record.objectForKey<NS::String>("sunset"_ns);
    items.icon = record.objectForKey<UI::Image>("conditionsImage"_ns);
    if (_colourIconWeather)
        items.icon = templateImage(items.icon);
    if (record) {
        const auto& indicator = indicatorFor(items.temperature.intValue(), low.intValue(), high.intValue());
        items.scaleIcon = indicatorPath(indicator.scale);
        items.markIcon = indicatorPath(indicator.mark);
    }
    return items;
}

}
