#include "Tweak/Editor/ColourStore.hpp"

#include "Platform/Foundation/CFNotificationCenter.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSDictionary.hpp"

namespace LYR {

namespace {

/// The background and the text of the widgets get one colour.
struct Row {
    NS::String (*page)();
    const char* keys[2];
};

constexpr Row rows[tabCount] = {
    {[] { return LYR_PREFIX "/Library/PreferenceBundles/LYRPrefs.bundle/subTime.plist"_ns; }, {"colourTime"}},
    {[] { return LYR_PREFIX "/Library/PreferenceBundles/LYRPrefs.bundle/subDate.plist"_ns; }, {"colourDate"}},
    {[] { return LYR_PREFIX "/Library/PreferenceBundles/LYRPrefs.bundle/subWidget.plist"_ns; },
        {"colourWidget", "colourTextWidget"}},
};

void storeInFile(const char* key, const NS::String& text)
{
    const auto& path = "/var/mobile/Library/Preferences/com.ostrel.colorslyr.plist"_ns;
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

void storeColour(Tab tab, const NS::String& text)
{
    const Row& row = rows[static_cast<std::size_t>(tab)];
    for (const char* key : row.keys) {
        if (key)
            storeInFile(key, text);
    }
    storeAsFallback(row.page(), text);
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
        "com.ostrel.colorslyr/ReloadPrefs"_ns.raw(), nullptr, nullptr, true);
}

}
