// Lock and backlight as the shell's own objects.
#include "Platform/SpringBoard/SBLockScreenManager.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/Blocks.hpp"
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
    /// One form ends in the other; which does the work is not to be told from outside.
    void lockUI(int source, const NS::Object& options)
    {
        if (DeviceState::shared().locksByLongForm)
            self().send<void, "lockUIFromSource:withOptions:completion:">(source, options, ObjC::BlockArgument{});
        else
            lock();
    }
    void lockUIThen(int source, const NS::Object& options, ObjC::BlockArgument completion)
    {
        if (DeviceState::shared().locksByLongForm)
            lock();
        else
            self().send<void, "lockUIFromSource:withOptions:">(source, options);
        Loop::shared().schedule(
            0, [block = KeptBlock<void()>(completion.block)] { block(); }, WorkKind::mainQueue);
    }
    static void lock()
    {
        if (Shell* shell = Shell::current())
            shell->setLocked(true);
    }
    bool unlockUI(int, const NS::Object&)
    {
        if (Shell* shell = Shell::current())
            shell->setLocked(false);
        return true;
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
            .def<"lockUIFromSource:withOptions:completion:", &SBLockScreenManager::lockUIThen>()
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
