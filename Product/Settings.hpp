// The settings of the user as data: the extension binds them, the settings pages show them, looks carry them.
#pragma once

#include <string_view>

namespace Product {

/// Where nothing reads a setting, its page is this and its cell the reason for which it is kept.
inline constexpr std::string_view noPage;

}

// Every setting, in the order in which they are bound: its variable, key, default, the settings page with its cell.
// A FLAG is a truth value, an OBJECT a text, also where it is a number.
#define LYR_SETTINGS(FLAG, OBJECT)                                                                                     \
    FLAG(_enabled, "enabled", true, "Root", "PSSwitchCell")                                                            \
    FLAG(_enabledCustom, "enabledCustom", true, "Root", "PSSwitchCell")                                                \
    FLAG(_enableTime, "enableTime", true, "subTime", "PSSwitchCell")                                                   \
    FLAG(_enableDate, "enableDate", true, "subDate", "PSSwitchCell")                                                   \
    FLAG(_chargeAnim, "chargeAnim", false, "Root", "PSSwitchCell")                                                     \
    FLAG(_showWidget, "showWidget", true, "subWidget", "PSSwitchCell")                                                 \
    FLAG(_showWidgetLastLook, "showWidgetLastLook", false, "subWidget", "PSSwitchCell")                                \
    FLAG(_updateLastLook, "updateLastLook", false, "Root", "PSSwitchCell")                                             \
    FLAG(_hiddenFlashlight, "hiddenFlashlight", false, "Root", "PSSwitchCell")                                         \
    FLAG(_hiddenCamera, "hiddenCamera", false, "Root", "PSSwitchCell")                                                 \
    FLAG(_twentyFour, "twentyFour", false, "subWidget", "PSSwitchCell")                                                \
    FLAG(_twentyFourTime, "twentyFourTime", false, "subTime", "PSSwitchCell")                                          \
    FLAG(hideNotifHeader, "hideNotifHeader", false, "Root", "PSSwitchCell")                                            \
    OBJECT(_amountEvent, "amountEvent", "0", Product::noPage, "the strip shows one event")                             \
    OBJECT(_rangeEvent, "rangeEvent", "1", "subWidget", "PSLinkListCell")                                              \
    OBJECT(_dateOption, "dateOption", "2", "subDate", "PSLinkListCell")                                                \
    OBJECT(_alternateOption, "alternateOption", "3", "subDate", "PSLinkListCell")                                      \
    OBJECT(_sunOption, "sunOption", "1", "subWidget", "PSLinkListCell")                                                \
    OBJECT(_battOption, "battOption", "1", "subWidget", "PSLinkListCell")                                              \
    OBJECT(_hlOption, "hlOption", "2", Product::noPage, "highLowOption says how the weather is shown")                 \
    OBJECT(_highLowOption, "highLowOption", "1", "subWidget", "PSLinkListCell")                                        \
    FLAG(_colourIconWeather, "colourIconWeather", true, "subWidget", "PSSwitchCell")                                   \
    FLAG(_shadowText, "shadowText", false, "Root", "PSSwitchCell")                                                     \
    FLAG(_useCustomFont2, "useCustomFont2", false, "subDate", "PSSwitchCell")                                          \
    FLAG(_disableAFont, "disableAFont", false, "Root", "PSSwitchCell")                                                 \
    OBJECT(_timeFormat, "timeFormat", "hh.mm", "subTime", "PSEditTextCell")                                            \
    OBJECT(_dateFormat, "dateFormat", "EEE,MMM dd", "subDate", "PSEditTextCell")                                       \
    OBJECT(_alternateFormat, "alternateFormat", "EEE, dd MMM Y G", "subDate", "PSEditTextCell")                        \
    OBJECT(_customFont, "customFont", "1", "subTime", "PSLinkListCell")                                                \
    OBJECT(_styleDate, "styleDate", "4", "subDate", "PSLinkListCell")                                                  \
    OBJECT(_alignTime, "alignTime", "2", "subTime", "PSLinkListCell")                                                  \
    OBJECT(_alignDate, "alignDate", "2", "subDate", "PSLinkListCell")                                                  \
    OBJECT(_XtimeLabel, "XtimeLabel", "0", "subTime", "PSSliderCell")                                                  \
    OBJECT(_XdateLabel, "XdateLabel", "0", "subDate", "PSSliderCell")                                                  \
    OBJECT(_YtimeLabel, "YtimeLabel", "0", "subTime", "PSSliderCell")                                                  \
    OBJECT(_YdateLabel, "YdateLabel", "0", "subDate", "PSSliderCell")                                                  \
    OBJECT(_YwidgetView, "YwidgetView", "0", "subWidget", "PSSliderCell")                                              \
    OBJECT(_XwidgetView, "XwidgetView", "0", "subWidget", "PSSliderCell")                                              \
    OBJECT(_yNC, "yNC", "185", "Root", "PSSliderCell")                                                                 \
    OBJECT(_Ymedia, "Ymedia", "400", Product::noPage, "the player has a place of its own")                             \
    OBJECT(_sizeWidget, "sizeWidget", "1.0", "subWidget", "PSSliderCell")                                              \
    OBJECT(_colorTextWidget, "colorTextWidget", "4", Product::noPage, "the strip always takes the stored colours")     \
    OBJECT(_colorWidget, "colorWidget", "1", Product::noPage, "the strip always takes the stored colours")             \
    OBJECT(_colorTime, "colorTime", "4", "subTime", "PSLinkListCell")                                                  \
    OBJECT(_colorDate, "colorDate", "4", "subDate", "PSLinkListCell")                                                  \
    OBJECT(_sizeTimeLabel, "sizeTimeLabel", "90", "subTime", "PSSliderCell")                                           \
    OBJECT(_sizeDateLabel, "sizeDateLabel", "20", "subDate", "PSSliderCell")                                           \
    OBJECT(_alphaTime, "alphaTime", "0.8", "subTime", "PSSliderCell")                                                  \
    OBJECT(_alphaDate, "alphaDate", "0.8", "subDate", "PSSliderCell")                                                  \
    OBJECT(_listFont, "listFont", "1", Product::noPage, "the editor's wheel has the list of fonts")                    \
    OBJECT(_listFont2, "listFont2", "1", Product::noPage, "the editor's wheel has the list of fonts")                  \
    FLAG(_enabledCT, "enabledCT", true, "Root", "PSSwitchCell")                                                        \
    OBJECT(_customText, "customText", "Swipe up to open", "Root", "PSEditTextCell")                                    \
    FLAG(_enabledCT2, "enabledCT2", false, "Root", "PSSwitchCell")                                                     \
    OBJECT(_ctNoOlder, "ctNoOlder", "No Older Notifications", "Root", "PSEditTextCell")

namespace Product {

/// A setting without its variable.
struct Setting {
    std::string_view key;
    bool isFlag;
    /// Of an object; a flag's is "true" or "false".
    std::string_view fallback;
    std::string_view page;
    /// The cell's kind; without a page the reason why there is none.
    std::string_view cell;

    constexpr bool isRead() const { return page != noPage; }
};

#define LYR_FLAG_ROW(variable, key, fallback, page, cell) {key, true, (fallback) ? "true" : "false", page, cell},
#define LYR_OBJECT_ROW(variable, key, fallback, page, cell) {key, false, fallback, page, cell},
inline constexpr Setting settings[] = {LYR_SETTINGS(LYR_FLAG_ROW, LYR_OBJECT_ROW)};
#undef LYR_FLAG_ROW
#undef LYR_OBJECT_ROW

/// The settings pages; the first links to the others.
inline constexpr std::string_view pages[] = {"Root", "subTime", "subDate", "subWidget"};

/// The fonts that the user picks in the editor stand in the same store, without a default.
inline constexpr char pickedTimeFontKey[] = "customFontPickerTime";
inline constexpr char pickedDateFontKey[] = "customFontPicker";

/// The keys of the colour file.
inline constexpr char timeColourKey[] = "colourTime";
inline constexpr char dateColourKey[] = "colourDate";
inline constexpr char widgetColourKey[] = "colourWidget";
inline constexpr char widgetTextColourKey[] = "colourTextWidget";
inline constexpr char shadowColourKey[] = "colourShadow";
inline constexpr std::string_view colourKeys[]
    = {timeColourKey, dateColourKey, widgetColourKey, widgetTextColourKey, shadowColourKey};

}
