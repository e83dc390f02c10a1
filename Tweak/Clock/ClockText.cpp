// Everything is computed afresh from the settings and one moment; nothing is kept between runs.
#include "Tweak/Clock/ClockText.hpp"

#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Tweak/Clock/DateLineIcon.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/Views.hpp"

#include <array>
#include <optional>

namespace LYR {

namespace {

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

/// The moment in the Hebrew, Chinese, Islamic or Buddhist calendar: the order of `alternateOption`, from 1 on.
NS::String alternateDate(const NS::Date& moment, int option)
{
    const std::array<id, 4> identifiers{NSCalendarIdentifierHebrew, NSCalendarIdentifierChinese,
        NSCalendarIdentifierIslamicCivil, NSCalendarIdentifierBuddhist};
    auto calendar = NS::Calendar::withIdentifier(NS::String(identifiers[static_cast<std::size_t>(option - 1)]));
    return formatted(moment, _alternateFormat.stringValue(), calendar);
}

/// How the line is written; none leaves the texts as they stand.
using LetterCase = NS::String (NS::String::*)() const;

/// Nothing for a style that does not exist.
std::optional<LetterCase> letterCaseOf(int style)
{
    constexpr LetterCase letterCases[]
        = {&NS::String::uppercaseString, &NS::String::lowercaseString, &NS::String::capitalizedString, nullptr};
    if (style < 1 || style > 4)
        return std::nullopt;
    return letterCases[style - 1];
}

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

/// Nothing stands between the date and the text but what the text carries itself.
void setWeatherLine(const NS::String& date, const NS::String& text, const UI::Image& icon)
{
    setLine(date, {attributed(text), attributed(icon ? " "_ns : ""_ns), dateLineIcon(icon)});
}

void setAgendaLine(const NS::String& date, const UI::Image& icon, const NS::String& text)
{
    setLine(date, {attributed(" "_ns), dateLineIcon(icon), attributed(text)});
}

/// The option that is shown: a line that is switched off has no item for which somebody would have to be asked.
DateOption shownOption()
{
    auto option = static_cast<DateOption>(_dateOption.intValue());
    const bool asks = (option >= DateOption::temperature && option <= DateOption::location)
        || option == DateOption::alarm || option == DateOption::event;
    return asks && !_enableDate ? DateOption::dateOnly : option;
}

/// All but the temperature is in the chosen case.
void setDateLine(const NS::Date& moment, LetterCase letterCase, Items& items)
{
    const auto cased = [&](const NS::String& text) { return letterCase ? (text.*letterCase)() : text; };
    const auto date = cased(formattedGregorian(moment, _dateFormat.stringValue()));
    switch (shownOption()) {
    case DateOption::dateOnly:
        return _dateLabel->setText(date);
    case DateOption::temperature:
        return setWeatherLine(date, items.weather().temperature, items.weather().icon);
    case DateOption::highLow:
        return setWeatherLine(date, cased(items.weather().highLow), items.weather().icon);
    case DateOption::condition:
        return setWeatherLine(date, cased(items.weather().condition), items.weather().icon);
    case DateOption::location:
        return setWeatherLine(date, cased(items.weather().location), items.weather().icon);
    case DateOption::alternateDate:
        if (int option = _alternateOption.intValue(); option >= 1 && option <= 4)
            setLine(date, {attributed(" • "_ns), attributed(cased(alternateDate(moment, option)))});
        return;
    case DateOption::alarm:
        return setAgendaLine(date, alarmIcon(), cased(items.alarm().text()));
    case DateOption::event:
        return setAgendaLine(date, eventIcon(), cased(items.event()));
    }
}

}

NS::String timeText(const NS::Date& moment)
{
    return formattedGregorian(moment, _twentyFourTime ? "H:mm"_ns : _timeFormat.stringValue());
}

void updateDateLine(const NS::Date& moment, Items& items)
{
    if (auto letterCase = letterCaseOf(_styleDate.intValue()))
        setDateLine(moment, *letterCase, items);
}

}
