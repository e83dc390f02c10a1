// The table of options, and the functions that its rows name.
#include "Tweak/Clock/DateOptions.hpp"

#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Product/Choices.hpp"
#include "Tweak/Clock/ClockText.hpp"
#include "Tweak/Clock/DateLineIcon.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"

namespace LYR {

namespace {

/// A missing value is an empty text, since an attributed text cannot be made from nil.
NS::MutableAttributedString attributed(const NS::String& text)
{
    return NS::MutableAttributedString::withString(text ? text : ""_ns);
}

void setLine(const NS::String& date, std::initializer_list<NS::AttributedString> items)
{
    auto line = attributed(date);
    for (const NS::AttributedString& item : items)
        line.appendAttributedString(item);
    _dateLabel->setAttributedText(line);
}

NS::AttributedString withSymbol(const NS::String& text, const NS::String& symbol)
{
    constexpr CGFloat side = 18;
    auto line = NS::MutableAttributedString::withString(text.stringByAppendingString(" "_ns));
    auto attachment = NS::TextAttachment::make();
    attachment.setBounds(CGRectMake(0, -3, side, side));
    attachment.setImage(UI::Image::systemImageNamed(symbol).imageWithTintColor(UI::Color::systemGrayColor()));
    line.appendAttributedString(NS::AttributedString::attributedStringWithAttachment(attachment));
    return line;
}

/// Nothing stands between the date and the text but what the text carries itself.
void setWeatherLine(const DateLine& line, const NS::String& text)
{
    const auto& icon = line.items.weather().icon;
    setLine(line.date, {attributed(text), attributed(icon ? " "_ns : ""_ns), dateLineIcon(icon)});
}

void setAgendaLine(const DateLine& line, const UI::Image& icon, const NS::String& text)
{
    setLine(line.date, {attributed(" "_ns), dateLineIcon(icon), attributed(line.cased(text))});
}

/// A text of the weather library, in the chosen case.
template <NS::String WeatherItems::*text>
void showWeather(DateLine& line)
{
    setWeatherLine(line, line.cased(line.items.weather().*text));
}

template <NS::String WeatherItems::*text>
NS::AttributedString previewWeather()
{
    return attributed(weatherItems().*text);
}

void showAlternateDate(DateLine& line)
{
    if (auto date = alternateDate(line.moment))
        setLine(line.date, {attributed(" • "_ns), attributed(line.cased(date))});
}

}

namespace Option {

constexpr DateOption dateOnly{
    [](DateLine& line) { _dateLabel->setText(line.date); },
    []() -> NS::AttributedString { return attributed(dateText(NS::Date::date())); }, false};
/// A temperature has no case.
constexpr DateOption temperature{[](DateLine& line) { setWeatherLine(line, line.items.weather().temperature); },
    previewWeather<&WeatherItems::temperature>, true};
constexpr DateOption highLow{showWeather<&WeatherItems::highLow>, previewWeather<&WeatherItems::highLow>, true};
constexpr DateOption condition{showWeather<&WeatherItems::condition>, previewWeather<&WeatherItems::condition>, true};
constexpr DateOption location{showWeather<&WeatherItems::location>, previewWeather<&WeatherItems::location>, true};
constexpr DateOption alternateDate{
    showAlternateDate, []() -> NS::AttributedString { return attributed(" • Alternate Date"_ns); }, false};
constexpr DateOption alarm{[](DateLine& line) { setAgendaLine(line, alarmIcon(), line.items.alarm().text()); },
    [] { return withSymbol("Alarm"_ns, "alarm.fill"_ns); }, true};
constexpr DateOption event{[](DateLine& line) { setAgendaLine(line, eventIcon(), line.items.event()); },
    [] { return withSymbol("Event"_ns, "calendar"_ns); }, true};

}

std::span<const DateOption* const> dateOptions()
{
#define LYR_OPTION(name, ...) &Option::name,
    static constexpr const DateOption* options[] = {LYR_DATE_OPTIONS(LYR_OPTION)};
#undef LYR_OPTION
    return options;
}

}
