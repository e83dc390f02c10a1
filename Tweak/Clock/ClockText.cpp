// Everything is computed afresh from the settings and one moment; nothing is kept between runs.
#include "Tweak/Clock/ClockText.hpp"

#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Tweak/Clock/DateLineIcon.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/Views.hpp"

#include <array>

namespace LYR {

namespace {

/// The date and what may follow it, all in one letter case but for the temperature.
struct DateLineTexts {
    NS::String date;
    NS::String temperature;
    NS::String highLow;
    NS::String condition;
    NS::String location;
    std::array<NS::String, 4> alternateDates;
    NS::String alarm;
    NS::String event;
};

enum class DateOption { dateOnly, temperature, highLow, condition, location, alternateDate, alarm, event };

NS::String formatted(const NS::Date& moment, const NS::String& pattern, const NS::Calendar& calendar)
{
    auto formatter = NS::DateFormatter::formatter();
    formatter.setDateFormat(pattern);
    formatter.setCalendar(calendar);
    return formatter.stringFromDate(moment);
}

NS::String formattedGregorian(const NS::Date& moment, const NS::String& pattern)
{
    return formatted(moment, pattern, NS::Calendar::calendarWithIdentifier("gregorian"_ns));
}

/// The moment in the Hebrew, Chinese, Islamic and Buddhist calendar: the order of `alternateOption`.
std::array<NS::String, 4> alternateDates(const NS::Date& moment)
{
    const std::array<id, 4> identifiers{NSCalendarIdentifierHebrew, NSCalendarIdentifierChinese,
        NSCalendarIdentifierIslamicCivil, NSCalendarIdentifierBuddhist};
    auto pattern = _alternateFormat.stringValue();
    std::array<NS::String, 4> dates;
    for (std::size_t i = 0; i < dates.size(); ++i)
        dates[i] = formatted(moment, pattern, NS::Calendar::withIdentifier(NS::String(identifiers[i])));
    return dates;
}

DateLineTexts gatherTexts(const NS::Date& moment, const Items& items)
{
    DateLineTexts texts;
    texts.date = formattedGregorian(moment, _dateFormat.stringValue());
    texts.alternateDates = alternateDates(moment);
    texts.temperature = items.weather.temperature;
    texts.highLow = items.weather.highLow;
    texts.condition = items.weather.condition;
    texts.location = items.weather.location;
    texts.alarm = items.alarm.text();
    texts.event = items.event;
    return texts;
}

using LetterCase = NS::String (NS::String::*)() const;

/// Applies the style to all but the temperature. False for a style that does not exist.
bool applyStyle(DateLineTexts& texts, int style)
{
    constexpr LetterCase letterCases[]
        = {&NS::String::uppercaseString, &NS::String::lowercaseString, &NS::String::capitalizedString, nullptr};
    if (style < 1 || style > 4)
        return false;
    LetterCase letterCase = letterCases[style - 1];
    if (!letterCase)
        return true;
    for (NS::String* text :
        {&texts.date, &texts.highLow, &texts.condition, &texts.location, &texts.alarm, &texts.event})
        *text = (text->*letterCase)();
    for (NS::String& date : texts.alternateDates)
        date = (date.*letterCase)();
    return true;
}

/// A missing value is an empty text, since an attributed text cannot be made from nil.
NS::MutableAttributedString attributed(const NS::String& text)
{
    return NS::MutableAttributedString::withString(text ? text : ""_ns);
}

NS::AttributedString spaceAndIcon(const UI::Image& image)
{
    auto item = attributed(" "_ns);
    item.appendAttributedString(dateLineIcon(image));
    return item;
}

void setLine(const NS::String& date, std::initializer_list<NS::AttributedString> items)
{
    auto line = attributed(date);
    for (const NS::AttributedString& item : items)
        line.appendAttributedString(item);
    _dateLabel->setAttributedText(line);
}

void setAlternateDateLine(const DateLineTexts& texts)
{
    int option = _alternateOption.intValue();
    if (option < 1 || option > 4)
        return;
    auto item = attributed(" • "_ns);
    item.appendAttributedString(attributed(texts.alternateDates[option - 1]));
    setLine(texts.date, {item});
}

/// Nothing stands between the date and an item but what the item's text carries itself.
void setDateLine(const DateLineTexts& texts, const WeatherItems& weather)
{
    const auto weatherLine = [&](const NS::String& item) {
        setLine(texts.date, {attributed(item), spaceAndIcon(weather.icon)});
    };
    switch (static_cast<DateOption>(_dateOption.intValue())) {
    case DateOption::dateOnly:
        return _dateLabel->setText(texts.date);
    case DateOption::temperature:
        return weatherLine(texts.temperature);
    case DateOption::highLow:
        return weatherLine(texts.highLow);
    case DateOption::condition:
        return weatherLine(texts.condition);
    case DateOption::location:
        return weatherLine(texts.location);
    case DateOption::alternateDate:
        return setAlternateDateLine(texts);
    case DateOption::alarm:
        return setLine(texts.date, {spaceAndIcon(alarmIcon()), attributed(texts.alarm)});
    case DateOption::event:
        return setLine(texts.date, {spaceAndIcon(eventIcon()), attributed(texts.event)});
    }
}

}

NS::String timeText(const NS::Date& moment)
{
    return formattedGregorian(moment, _twentyFourTime ? "H:mm"_ns : _timeFormat.stringValue());
}

void updateDateLine(const NS::Date& moment, const Items& items)
{
    DateLineTexts texts = gatherTexts(moment, items);
    if (applyStyle(texts, _styleDate.intValue()))
        setDateLine(texts, items.weather);
}

}
