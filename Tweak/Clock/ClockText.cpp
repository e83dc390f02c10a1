// Everything is computed afresh from the settings and one moment; nothing is kept between runs.
#include "Tweak/Clock/ClockText.hpp"

#include "Product/Choices.hpp"
#include "Tweak/Clock/DateOptions.hpp"
#include "Tweak/FixedFormatter.hpp"
#include "Tweak/Settings.hpp"

namespace LYR {

namespace {

NS::String formatted(const NS::Date& moment, const NS::String& pattern, const NS::Calendar& calendar)
{
    auto formatter = fixedFormatter(pattern);
    formatter.setCalendar(calendar);
    return formatter.stringFromDate(moment);
}

NS::String formattedGregorian(const NS::Date& moment, const NS::String& pattern)
{
    return formatted(moment, pattern, NS::Calendar::calendarWithIdentifier("gregorian"_ns));
}

namespace CalendarNames {

constexpr const id* hebrew = &NSCalendarIdentifierHebrew;
constexpr const id* chinese = &NSCalendarIdentifierChinese;
constexpr const id* islamic = &NSCalendarIdentifierIslamicCivil;
constexpr const id* buddhist = &NSCalendarIdentifierBuddhist;

}

namespace Case {

constexpr LetterCase upper = &NS::String::uppercaseString;
constexpr LetterCase lower = &NS::String::lowercaseString;
constexpr LetterCase capitalized = &NS::String::capitalizedString;
constexpr LetterCase asWritten = nullptr;

}

/// The entry that a code from 1 on stands for; null for a code that stands for none.
template <class T>
const T* chosen(std::span<const T> entries, int code)
{
    const bool exists = code >= 1 && code <= static_cast<int>(entries.size());
    return exists ? &entries[static_cast<std::size_t>(code - 1)] : nullptr;
}

const LetterCase* chosenLetterCase()
{
#define LYR_CASE(name, ...) Case::name,
    static constexpr LetterCase letterCases[] = {LYR_LETTER_CASES(LYR_CASE)};
#undef LYR_CASE
    return chosen<LetterCase>(letterCases, _styleDate.intValue());
}

/// Null for a code that names none.
const DateOption* chosenOption()
{
    auto options = dateOptions();
    int code = _dateOption.intValue();
    if (code < 0 || code >= static_cast<int>(options.size()))
        return nullptr;
    const DateOption* option = options[static_cast<std::size_t>(code)];
    return option->asks && !_enableDate ? options.front() : option;
}

}

NS::String timeText(const NS::Date& moment)
{
    return formattedGregorian(moment, _twentyFourTime ? "H:mm"_ns : _timeFormat.stringValue());
}

NS::String dateText(const NS::Date& moment)
{
    return formattedGregorian(moment, _dateFormat.stringValue());
}

NS::String alternateDate(const NS::Date& moment)
{
#define LYR_CALENDAR(name, ...) CalendarNames::name,
    static constexpr const id* identifiers[] = {LYR_CALENDARS(LYR_CALENDAR)};
#undef LYR_CALENDAR
    auto identifier = chosen<const id*>(identifiers, _alternateOption.intValue());
    if (!identifier)
        return {};
    auto calendar = NS::Calendar::withIdentifier(NS::String(**identifier));
    return formatted(moment, _alternateFormat.stringValue(), calendar);
}

void updateDateLine(const NS::Date& moment, Items& items)
{
    auto letterCase = chosenLetterCase();
    auto option = chosenOption();
    if (!letterCase || !option)
        return;
    DateLine line{{}, moment, *letterCase, items};
    line.date = line.cased(dateText(moment));
    option->show(line);
}

}
