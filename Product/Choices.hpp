// What the settings with a list of values offer. A row is a name of ours, the title's key on the settings page, and the
// title in the editor, which is empty where the editor shows something else. The stored codes count on from the first.
#pragma once

#include <span>
#include <string_view>

// dateOption, from 0 on.
#define LYR_DATE_OPTIONS(ROW)                                                                                          \
    ROW(dateOnly, "itemNone", "")                                                                                      \
    ROW(temperature, "itemTemperature", "")                                                                            \
    ROW(highLow, "itemHighLow", "")                                                                                    \
    ROW(condition, "itemCondition", "")                                                                                \
    ROW(location, "itemLocation", "")                                                                                  \
    ROW(alternateDate, "itemAlternate", "")                                                                            \
    ROW(alarm, "itemAlarm", "")                                                                                        \
    ROW(event, "itemEvent", "")

// highLowOption, from 0 on.
#define LYR_WEATHER_OPTIONS(ROW)                                                                                       \
    ROW(oneCell, "widthOne", "1 x 1")                                                                                  \
    ROW(twoCells, "widthTwo", "1 x 2")

// The others from 1 on. sunOption:
#define LYR_AGENDA_OPTIONS(ROW)                                                                                        \
    ROW(sunrise, "sunrise", "Sunrise")                                                                                 \
    ROW(sunset, "sunset", "Sunset")                                                                                    \
    ROW(alarm, "itemAlarm", "Alarm")                                                                                   \
    ROW(event, "itemEvent", "Event")

// battOption
#define LYR_BATTERY_OPTIONS(ROW)                                                                                       \
    ROW(percentage, "batteryPercentage", "Percentage  1 x 1")                                                          \
    ROW(phone, "batteryPhone", "Phone 1 x 1")                                                                          \
    ROW(bar, "batteryBar", "1 x 2")

// styleDate
#define LYR_LETTER_CASES(ROW)                                                                                          \
    ROW(upper, "caseUpper", "Uppercase")                                                                               \
    ROW(lower, "caseLower", "Lowercase")                                                                               \
    ROW(capitalized, "caseCapitalized", "Capitalized")                                                                 \
    ROW(asWritten, "caseNone", "None")

// alternateOption
#define LYR_CALENDARS(ROW)                                                                                             \
    ROW(hebrew, "calendarHebrew", "Hebrew")                                                                            \
    ROW(chinese, "calendarChinese", "Chinese")                                                                         \
    ROW(islamic, "calendarIslamic", "Islamic")                                                                         \
    ROW(buddhist, "calendarBuddhist", "Buddhist")

// alignTime and alignDate; the editor shows symbols.
#define LYR_ALIGNMENTS(ROW)                                                                                            \
    ROW(left, "alignLeft", "text.alignleft")                                                                           \
    ROW(centre, "alignCentre", "text.aligncenter")                                                                     \
    ROW(right, "alignRight", "text.alignright")

namespace Product {

struct Choice {
    const char* pageTitle;
    const char* editorTitle;
};

#define LYR_CHOICE(name, pageTitle, editorTitle) {pageTitle, editorTitle},
inline constexpr Choice dateOptions[] = {LYR_DATE_OPTIONS(LYR_CHOICE)};
inline constexpr Choice weatherOptions[] = {LYR_WEATHER_OPTIONS(LYR_CHOICE)};
inline constexpr Choice agendaOptions[] = {LYR_AGENDA_OPTIONS(LYR_CHOICE)};
inline constexpr Choice batteryOptions[] = {LYR_BATTERY_OPTIONS(LYR_CHOICE)};
inline constexpr Choice letterCases[] = {LYR_LETTER_CASES(LYR_CHOICE)};
inline constexpr Choice calendars[] = {LYR_CALENDARS(LYR_CHOICE)};
inline constexpr Choice alignments[] = {LYR_ALIGNMENTS(LYR_CHOICE)};
#undef LYR_CHOICE

/// The choices of a setting, and the code of the first.
struct ChoiceList {
    std::string_view key;
    int first;
    std::span<const Choice> choices;
};

inline constexpr ChoiceList choiceLists[] = {
    {"dateOption", 0, dateOptions},
    {"highLowOption", 0, weatherOptions},
    {"sunOption", 1, agendaOptions},
    {"battOption", 1, batteryOptions},
    {"styleDate", 1, letterCases},
    {"alternateOption", 1, calendars},
    {"alignTime", 1, alignments},
    {"alignDate", 1, alignments},
};

/// The choices of the setting with that key; none for one that has no list.
constexpr ChoiceList choicesOf(std::string_view key)
{
    for (const ChoiceList& list : choiceLists)
        if (list.key == key)
            return list;
    return {};
}

}
