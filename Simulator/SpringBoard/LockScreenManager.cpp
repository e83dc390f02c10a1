// Lock and backlight as the shell's own objects.
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

struct SBLockScreenManager : StandIn {
    using Root = SBLockScreenManager;

    bool isLockScreenVisible() const { return Shell::current() && Shell::current()->isCoverSheetPresented(); }
    bool isUILocked() const { return Shell::current() && Shell::current()->isLocked(); }
    void lockUI(int, const NS::Object&)
    {
        if (Shell* shell = Shell::current())
            shell->setLocked(true);
    }
    void unlockUI(int, const NS::Object&)
    {
        if (Shell* shell = Shell::current())
            shell->setLocked(false);
    }
};

struct SBBacklightController : StandIn {
    using Root = SBBacklightController;

    bool screenIsOn() const { return Shell::current() && Shell::current()->isLit(); }
    void turnOnScreenFully(long)
    {
        if (Shell* shell = Shell::current())
            shell->setLit(true);
    }
};

}

void registerLockScreenManager()
{
    Binder<SBLockScreenManager>("SBLockScreenManager", "NSObject")
        .classMethod<"sharedInstance", &sharedObject<"SBLockScreenManager">>()
        .def<"isLockScreenVisible", &SBLockScreenManager::isLockScreenVisible>()
        .def<"isUILocked", &SBLockScreenManager::isUILocked>()
        .def<"lockUIFromSource:withOptions:", &SBLockScreenManager::lockUI>()
        .def<"unlockUIFromSource:withOptions:", &SBLockScreenManager::unlockUI>()
        .add();
    Binder<SBBacklightController>("SBBacklightController", "NSObject")
        .classMethod<"sharedInstance", &sharedObject<"SBBacklightController">>()
        .def<"screenIsOn", &SBBacklightController::screenIsOn>()
        .def<"turnOnScreenFullyWithBacklightSource:", &SBBacklightController::turnOnScreenFully>()
        .add();
}

}
