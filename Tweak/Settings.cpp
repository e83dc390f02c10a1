// Binding of the settings, and the colour file.
#include "Tweak/Settings.hpp"

#include "Platform/Companions/SparkColourPickerUtils.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Product/Names.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace LYR {

#define LYR_DEFINE_FLAG(variable, key, fallback, ...) LYR_VARIABLE(bool, variable, fallback);
#define LYR_DEFINE_OBJECT(variable, key, fallback, ...) LYR_VARIABLE(ObjectSetting, variable, key, fallback);
LYR_SETTINGS(LYR_DEFINE_FLAG, LYR_DEFINE_OBJECT)
#undef LYR_DEFINE_FLAG
#undef LYR_DEFINE_OBJECT

LYR_VARIABLE(ObjC::Variable<HB::Preferences>, _preferences);
LYR_VARIABLE(ObjC::Variable<NS::Dictionary>, _preferencesDictionary);

NS::Object ObjectSetting::usableValue() const
{
    NS::Object value = m_value;
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

namespace {

/// Digits, with a point among them or not.
bool isDecimal(std::string_view text)
{
    return text.find_first_of("0123456789") != text.npos && text.find_first_not_of("0123456789.") == text.npos
        && std::count(text.begin(), text.end(), '.') <= 1;
}

/// "#RRGGBB" or "#RRGGBB:opacity", read without the library; white for any other text.
UI::Color colourOfText(std::string_view text)
{
    constexpr std::size_t length = 7;
    unsigned packed = 0;
    if (text.size() < length || text[0] != '#')
        return UI::Color::whiteColor();
    const char* end = text.data() + length;
    if (auto [stop, error] = std::from_chars(text.data() + 1, end, packed, 16); error != std::errc() || stop != end)
        return UI::Color::whiteColor();
    auto opacity = text.substr(length);
    if (!opacity.empty() && (opacity[0] != ':' || !isDecimal(opacity.substr(1))))
        return UI::Color::whiteColor();
    double alpha = opacity.empty() ? 1 : NS::String::fromUTF8(opacity.substr(1)).doubleValue();
    const auto component = [packed](int shift) { return (packed >> shift & 0xff) / 255.0; };
    return UI::Color::colorWithRed(component(16), component(8), component(0), std::min(alpha, 1.0));
}

void bindSettings()
{
#define LYR_BIND_FLAG(variable, key, fallback, ...) _preferences->registerBool(&variable, fallback, key##_ns);
#define LYR_BIND_OBJECT(variable, key, fallback, ...)                                                                  \
    _preferences->registerObject(variable.address(), fallback##_ns, key##_ns);
    LYR_SETTINGS(LYR_BIND_FLAG, LYR_BIND_OBJECT)
#undef LYR_BIND_FLAG
#undef LYR_BIND_OBJECT
}

}

void loadPrefs()
{
    auto preferences = HB::Preferences::withIdentifier(LYR_SETTINGS_STORE ""_ns);
    // What is bound follows the stored values by itself, and each registration reads them all.
    if (_preferences.reference() == preferences)
        return;
    _preferences = preferences;
    bindSettings();
}

void readPrefs()
{
    bindSettings();
}

void loadColours()
{
    auto colours = NS::Dictionary::dictionaryWithContentsOfFile(LYR_COLOUR_FILE ""_ns);
    _preferencesDictionary = colours ? colours : NS::Dictionary::make();
}

UI::Color storedColour(const char* key)
{
    auto text = _preferencesDictionary->objectForKey<NS::String>(NS::String::fromUTF8(key));
    if (auto colour = Spark::ColourPickerUtils::colourWithString(text, "#ffffff"_ns))
        return colour;
    return colourOfText(text.utf8());
}

}
