// Writes one value or one colour, and tells the rest of the phone.
#include "Tweak/Editor/Storing.hpp"

#include "Platform/Foundation/CFNotificationCenter.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Product/Names.hpp"
#include "Tweak/State.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace LYR {

namespace {

void post(const NS::String& notification)
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), notification.raw(), nullptr, nullptr, true);
}

/// The background and the text of the widgets get one colour.
struct StoredColour {
    const char* page;
    const char* keys[2];
};

constexpr PerTab<StoredColour> storedColours{{
    {LYR_PREFIX LYR_SETTINGS_PAGES "subTime.plist", {Product::timeColourKey}},
    {LYR_PREFIX LYR_SETTINGS_PAGES "subDate.plist", {Product::dateColourKey}},
    {LYR_PREFIX LYR_SETTINGS_PAGES "subWidget.plist", {Product::widgetColourKey, Product::widgetTextColourKey}},
}};

void storeInFile(const char* key, const NS::String& text)
{
    const auto& path = LYR_COLOUR_FILE ""_ns;
    auto colours = NS::Dictionary::dictionaryWithContentsOfFile(path).mutableCopy();
    colours.setObject(text, NS::String::fromUTF8(key));
    colours.writeToFile(path, true);
}

void storeAsFallback(const NS::String& path, const NS::String& text)
{
    auto page = NS::Dictionary::dictionaryWithContentsOfFile(path).mutableCopy();
    auto picker = page.objectForKey<NS::Dictionary>("libsparkcolourpicker"_ns).mutableCopy();
    if (picker) {
        picker.setObject(text, "fallback"_ns);
        page.setObject(picker, "libsparkcolourpicker"_ns);
    }
    page.writeToFile(path, true);
}

}

void store(const NS::Object& value, const ObjectSetting& setting)
{
    _preferences->setObject(value, setting.key());
}

void storeWhenReleased(const EditedSetting& settings, const UI::Slider& slider, void (*follow)())
{
    constexpr int storedDecimals = 6;
    if (slider.isTracking())
        return;
    forActive(settings, [&](const ObjectSetting& setting) {
        store(fixedText(slider.value(), storedDecimals), setting);
        if (follow)
            follow();
        dateView->updateTime();
    });
}

void announceSettings()
{
    post(LYR_SETTINGS_CHANGED ""_ns);
}

void storeColour(Tab tab, const NS::String& text)
{
    const StoredColour& stored = storedColours[tab];
    for (const char* key : stored.keys) {
        if (key)
            storeInFile(key, text);
    }
    storeAsFallback(NS::String::fromUTF8(stored.page), text);
    post(LYR_COLOURS_CHANGED ""_ns);
}

NS::String colourText(const UI::Color& colour, const NS::String& opacity)
{
    constexpr char hexadecimal[] = "0123456789ABCDEF";
    CGFloat components[4] = {};
    colour.getRed(&components[0], &components[1], &components[2], &components[3]);
    char text[7] = {'#'};
    for (int i = 0; i < 3; ++i) {
        auto byte = static_cast<unsigned>(std::clamp<CGFloat>(components[i], 0, 1) * 255);
        text[1 + 2 * i] = hexadecimal[byte >> 4];
        text[2 + 2 * i] = hexadecimal[byte & 15];
    }
    return NS::String::fromUTF8({text, sizeof text}).stringByAppendingString(opacity);
}

/// The whole number nearest to one that is not negative; of two, the even one.
static long long nearest(double number)
{
    auto whole = static_cast<long long>(number);
    double rest = number - static_cast<double>(whole);
    return rest > 0.5 || (rest == 0.5 && whole % 2 == 1) ? whole + 1 : whole;
}

NS::String fixedText(double number, int decimals)
{
    constexpr double largest = 1e9;
    double finite = std::isfinite(number) ? std::clamp(number, -largest, largest) : 0;
    double unit = 1;
    for (int i = 0; i < decimals; ++i)
        unit *= 10;
    long long digits = nearest(std::fabs(finite) * unit);
    char text[32];
    char* at = std::end(text);
    for (int written = 0; digits > 0 || written <= decimals; ++written, digits /= 10) {
        if (written == decimals && decimals > 0)
            *--at = '.';
        *--at = static_cast<char>('0' + digits % 10);
    }
    if (std::signbit(finite))
        *--at = '-';
    return NS::String::fromUTF8({at, static_cast<std::size_t>(std::end(text) - at)});
}

}
