// Lock and backlight as the shell's own objects.
#include "Platform/SpringBoard/SBLockScreenManager.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
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

static const StandInClass sbLockScreenManager(
    "SBLockScreenManager", "NSObject", [](Binder<SBLockScreenManager>& binder) {
        binder.classMethod<"sharedInstance", &sharedObject<SB::LockScreenManager>>()
            .def<"isLockScreenVisible", &SBLockScreenManager::isLockScreenVisible>()
            .def<"isUILocked", &SBLockScreenManager::isUILocked>()
            .def<"lockUIFromSource:withOptions:", &SBLockScreenManager::lockUI>()
            .def<"unlockUIFromSource:withOptions:", &SBLockScreenManager::unlockUI>()
            .add();
    });

static const StandInClass sbBacklightController(
    "SBBacklightController", "NSObject", [](Binder<SBBacklightController>& binder) {
        binder.classMethod<"sharedInstance", &sharedObject<SB::BacklightController>>()
            .def<"screenIsOn", &SBBacklightController::screenIsOn>()
            .def<"turnOnScreenFullyWithBacklightSource:", &SBBacklightController::turnOnScreenFully>()
            .add();
    });

}
