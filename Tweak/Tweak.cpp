// Start-up: runs once when the shell loads the library, before its user interface exists.
#include "LYRLocalization/LYRLocalization.hpp"
#include "Platform/Foundation/CFNotificationCenter.hpp"
#include "Product/Names.hpp"
#include "Tweak/AFont.hpp"
#include "Tweak/Companions.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Fonts.hpp"
#include "Tweak/Hooks.hpp"
#include "Tweak/Lifecycle/FirstUnlock.hpp"
#include "Tweak/Respring.hpp"
#include "Tweak/Settings.hpp"
#include "WKSPalette/WKSColorUtils.hpp"

#include <dlfcn.h>

namespace LYR {

namespace {

void reloadPrefs(CFNotificationCenterRef, void*, id, const void*, id)
{
    loadPrefs();
}

void observeNotifications()
{
    auto center = CFNotificationCenterGetDarwinNotifyCenter();
    CFNotificationCenterAddObserver(center, nullptr, reloadPrefs, LYR_SETTINGS_CHANGED ""_ns.raw(), nullptr,
        CFNotificationSuspensionBehavior::coalesce);
    CFNotificationCenterAddObserver(center, nullptr, respring, LYR_RESPRING ""_ns.raw(), nullptr,
        CFNotificationSuspensionBehavior::deliverImmediately);
}

__attribute__((constructor)) void start()
{
    ObjC::AutoreleasePool pool;
    registerWKSPalette();
    registerLYRLocalization();
    registerColourSheet();
    loadAFont();
    // Brings the weather classes into the process.
    dlopen("/System/Library/PrivateFrameworks/Weather.framework/Weather", RTLD_LAZY);
    openCompanions();
    loadPrefs();
    observeNotifications();
    registerUserFonts();
    updateAFontBlacklist();
    installHooks();
    awaitFirstUnlock();
}

}

}
