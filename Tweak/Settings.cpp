// Binding of the settings, and the colour file.
#include "Tweak/Settings.hpp"

#include "Platform/Companions/SparkColourPickerUtils.hpp"
#include "Platform/Foundation/NSNumber.hpp"

#include <cmath>

namespace LYR {

#define LYR_DEFINE_FLAG(variable, key, fallback) constinit bool variable = fallback;
#define LYR_DEFINE_OBJECT(variable, key, fallback) constinit ObjectSetting variable{fallback};
LYR_SETTINGS(LYR_DEFINE_FLAG, LYR_DEFINE_OBJECT)
#undef LYR_DEFINE_FLAG
#undef LYR_DEFINE_OBJECT

constinit ObjC::Variable<HB::Preferences> _preferences;
constinit ObjC::Variable<NS::Dictionary> _preferencesDictionary;

NS::Object ObjectSetting::usableValue() const
{
    NS::Object value = value_;
    if (value.is<NS::String>() || value.is<NS::Number>())
        return value;
    return fallback();
}

double ObjectSetting::doubleValue() const
{
    double number = usableValue().send<double, "doubleValue">();
    return std::isfinite(number) ? number : 0;
}

NS::String ObjectSetting::stringValue() const
{
    NS::Object value = usableValue();
    if (auto text = value.as<NS::String>())
        return text;
    return value.send<NS::String, "stringValue">();
}

void loadPrefs()
{
    _preferences = HB::Preferences::withIdentifier("com.ostrel.lyrprefs"_ns);
#define LYR_BIND_FLAG(variable, key, fallback) _preferences->registerBool(&variable, fallback, key##_ns);
#define LYR_BIND_OBJECT(variable, key, fallback)                                                                       \
    _preferences->registerObject(variable.address(), fallback##_ns, key##_ns);
    LYR_SETTINGS(LYR_BIND_FLAG, LYR_BIND_OBJECT)
#undef LYR_BIND_FLAG
#undef LYR_BIND_OBJECT
}

void loadColours()
{
    auto colours
        = NS::Dictionary::dictionaryWithContentsOfFile("/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist"_ns);
    _preferencesDictionary = colours ? colours : NS::Dictionary::make();
}

UI::Color storedColour(const NS::String& key)
{
    return Spark::ColourPickerUtils::colourWithString(
        _preferencesDictionary->objectForKey<NS::String>(key), "#ffffff"_ns);
}

}
