// Hears of the first unlock, and makes up for what could not be read before.
#include "Tweak/Lifecycle/FirstUnlock.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Platform/Foundation/NSNotificationCenter.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Platform/ObjC/Method.hpp"
#include "Product/Names.hpp"
#include "Tweak/AFont.hpp"
#include "Tweak/Clock/ClockLabels.hpp"
#include "Tweak/Editor/Editor.hpp"
#include "Tweak/Settings.hpp"
#include "Tweak/State.hpp"
#include "Tweak/Widgets/Strip.hpp"

namespace LYR {

namespace {

class UnlockObserver : public ObjC::Class_<UnlockObserver, NS::Object, "LYRUnlockObserver"> {
public:
    using Class_::Class_;
};

/// It is there, and nobody gets it.
bool areSettingsLocked()
{
    auto file = LYR_PREFERENCES LYR_SETTINGS_STORE ".plist"_ns;
    return NS::FileManager::defaultManager().fileExistsAtPath(file)
        && !NS::Dictionary::dictionaryWithContentsOfFile(file);
}

/// The interceptions are in place and stay; from now on they do nothing.
void standAside()
{
    closeEditorAtOnce();
    ObjC::standsAside = true;
    giveBackStockClock();
    _widgetView->setHidden(true);
    hideBatterySaverButtons();
}

void readAgain(UnlockObserver self, SEL)
{
    if (areSettingsLocked())
        return;
    NS::NotificationCenter::defaultCenter().removeObserver(self);
    readPrefs();
    if (!_enabled)
        return standAside();
    updateAFontBlacklist();
    dateView->updateTime();
}

}

void awaitFirstUnlock()
{
    if (!areSettingsLocked())
        return;
    ObjC::ClassBuilder::of<UnlockObserver>(NS::Object::type()).method<"readAgain", &readAgain>().build();
    // Lives as long as the process, like the library.
    static constinit ObjC::Variable<UnlockObserver> observer;
    observer = UnlockObserver::make();
    NS::NotificationCenter::defaultCenter().addObserver(
        observer.reference(), ObjC::selector<"readAgain">(), "UIApplicationProtectedDataDidBecomeAvailable"_ns);
}

}
