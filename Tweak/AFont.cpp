// Both entries are written at every start, so that switching the setting off undoes them.
#include "Tweak/AFont.hpp"

#include "Platform/Companions/HBPreferences.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Product/Names.hpp"
#include "Tweak/Settings.hpp"

#include <dlfcn.h>

namespace LYR {

LYR_VARIABLE(ObjC::Variable<NS::MutableDictionary>, _prefsAFont);

static constexpr const char library[] = LYR_PREFIX LYR_EXTENSIONS "AFont.dylib";

void loadAFont()
{
    dlopen(library, RTLD_NOW);
}

void updateAFontBlacklist()
{
    auto files = NS::FileManager::defaultManager();
    auto settingsFile = LYR_PREFERENCES "com.rpgfarm.afontprefs.plist"_ns;
    if (!files.fileExistsAtPath(NS::String::fromUTF8(library)))
        return;

    auto settings = NS::MutableDictionary::dictionary();
    if (files.fileExistsAtPath(settingsFile)) {
        settings = NS::MutableDictionary::dictionaryWithContentsOfFile(settingsFile);
        // What cannot be read is not ours to replace.
        if (!settings)
            return;
    }
    auto stored = settings.objectForKey<NS::Dictionary>("blacklist"_ns);
    auto blacklist = stored ? stored.mutableCopy() : NS::MutableDictionary::dictionary();
    auto excluded = NS::Number::numberWithBool(_disableAFont);
    blacklist.setObject(excluded, "com.apple.springboard"_ns);
    blacklist.setObject(excluded, "com.apple.Preferences"_ns);
    settings.setObject(blacklist, "blacklist"_ns);
    _prefsAFont = settings;
    // The settings service keeps what it has read, and would write that over a file of ours.
    if (auto store = HB::Preferences::withIdentifier("com.rpgfarm.afontprefs"_ns))
        store.setObject(blacklist.copy(), "blacklist"_ns);
    else
        settings.copy().writeToFile(settingsFile, true);
}

}
