// Every setting of the user, each bound to a process-wide variable of its name.
#pragma once

#include "Platform/Companions/HBPreferences.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace LYR {

/// A setting stored as text or as a number. Anything else that the store may hold counts as the default.
class ObjectSetting {
public:
    constexpr ObjectSetting(const char* fallback)
        : fallback_(fallback)
    {
    }

    /// The whole number; 0 for text that is none.
    int intValue() const { return usableValue().send<int, "intValue">(); }
    /// The number, finite; 0 for text that is none.
    double doubleValue() const;
    NS::String stringValue() const;

    /// Shows a value at once that is being stored.
    void assign(const NS::Object& value) { value_ = value; }
    id* address() { return value_.address(); }
    NS::String fallback() const { return NS::String::fromUTF8(fallback_); }

private:
    NS::Object usableValue() const;

    ObjC::Variable<NS::Object> value_;
    const char* fallback_;
};

// The settings in the order in which they are bound: variable, key, default.
#define LYR_SETTINGS(FLAG, OBJECT)                                                                                     \
    FLAG(_enabled, "enabled", true)                                                                                    \
    FLAG(_enabledCustom, "enabledCustom", true)                                                                        \
    FLAG(_enableTime, "enableTime", true)                                                                              \
    FLAG(_enableDate, "enableDate", true)                                                                              \
    FLAG(_chargeAnim, "chargeAnim", false)                                                                             \
    FLAG(_showWidget, "showWidget", true)                                                                              \
    FLAG(_showWidgetLastLook, "showWidgetLastLook", false)                                                             \
    FLAG(_updateLastLook, "updateLastLook", false)                                                                     \
    FLAG(_hiddenFlashlight, "hiddenFlashlight", false)                                                                 \
    FLAG(_hiddenCamera, "hiddenCamera", false)                                                                         \
    FLAG(_twentyFour, "twentyFour", false)                                                                             \
    FLAG(_twentyFourTime, "twentyFourTime", false)                                                                     \
    FLAG(hideNotifHeader, "hideNotifHeader", false)                                                                    \
    OBJECT(_amountEvent, "amountEvent", "0")                                                                           \
    OBJECT(_rangeEvent, "rangeEvent", "1")                                                                             \
    OBJECT(_dateOption, "dateOption", "2")                                                                             \
    OBJECT(_alternateOption, "alternateOption", "3")                                                                   \
    OBJECT(_sunOption, "sunOption", "1")                                                                               \
    OBJECT(_battOption, "battOption", "1")                                                                             \
    OBJECT(_hlOption, "hlOption", "2")                                                                                 \
    OBJECT(_highLowOption, "highLowOption", "1")                                                                       \
    FLAG(_colourIconWeather, "colourIconWeather", true)                                                                \
    FLAG(_shadowText, "shadowText", false)                                                                             \
    FLAG(_useCustomFont2, "useCustomFont2", false)                                                                     \
    FLAG(_disableAFont, "disableAFont", false)                                                                         \
    OBJECT(_timeFormat, "timeFormat", "hh.mm")                                                                         \
    OBJECT(_dateFormat, "dateFormat", "EEE,MMM dd")                                                                    \
    OBJECT(_alternateFormat, "alternateFormat", "EEE, dd MMM Y G")                                                     \
    OBJECT(_customFont, "customFont", "1")                                                                             \
    OBJECT(_styleDate, "styleDate", "4")                                                                               \
    OBJECT(_alignTime, "alignTime", "2")                                                                               \
    OBJECT(_alignDate, "alignDate", "2")                                                                               \
    OBJECT(_XtimeLabel, "XtimeLabel", "0")                                                                             \
    OBJECT(_XdateLabel, "XdateLabel", "0")                                                                             \
    OBJECT(_YtimeLabel, "YtimeLabel", "0")                                                                             \
    OBJECT(_YdateLabel, "YdateLabel", "0")                                                                             \
    OBJECT(_YwidgetView, "YwidgetView", "0")                                                                           \
    OBJECT(_XwidgetView, "XwidgetView", "0")                                                                           \
    OBJECT(_yNC, "yNC", "185")                                                                                         \
    OBJECT(_Ymedia, "Ymedia", "400")                                                                                   \
    OBJECT(_sizeWidget, "sizeWidget", "1.0")                                                                           \
    OBJECT(_colorTextWidget, "colorTextWidget", "4")                                                                   \
    OBJECT(_colorWidget, "colorWidget", "1")                                                                           \
    OBJECT(_colorTime, "colorTime", "4")                                                                               \
    OBJECT(_colorDate, "colorDate", "4")                                                                               \
    OBJECT(_sizeTimeLabel, "sizeTimeLabel", "90")                                                                      \
    OBJECT(_sizeDateLabel, "sizeDateLabel", "20")                                                                      \
    OBJECT(_alphaTime, "alphaTime", "0.8")                                                                             \
    OBJECT(_alphaDate, "alphaDate", "0.8")                                                                             \
    OBJECT(_listFont, "listFont", "1")                                                                                 \
    OBJECT(_listFont2, "listFont2", "1")                                                                               \
    FLAG(_enabledCT, "enabledCT", true)                                                                                \
    OBJECT(_customText, "customText", "Swipe up to open")                                                              \
    FLAG(_enabledCT2, "enabledCT2", false)                                                                             \
    OBJECT(_ctNoOlder, "ctNoOlder", "No Older Notifications")

#define LYR_DECLARE_FLAG(variable, key, fallback) extern constinit bool variable;
#define LYR_DECLARE_OBJECT(variable, key, fallback) extern constinit ObjectSetting variable;
LYR_SETTINGS(LYR_DECLARE_FLAG, LYR_DECLARE_OBJECT)
#undef LYR_DECLARE_FLAG
#undef LYR_DECLARE_OBJECT

/// The store that the variables are bound to; replaced on every load.
extern constinit ObjC::Variable<HB::Preferences> _preferences;
/// The colour file as it was last read.
extern constinit ObjC::Variable<NS::Dictionary> _preferencesDictionary;

/// Binds every setting anew.
void loadPrefs();
/// Reads the colour file into `_preferencesDictionary`; empty if there is none.
void loadColours();
/// A colour of the colour file as it was last read; white if it has none under that key. The colour library reads the
/// text, and where the phone has no such library we do.
UI::Color storedColour(const NS::String& key);

}
