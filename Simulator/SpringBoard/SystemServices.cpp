// Services of the system beside the shell: restarting it, and the battery saver.
#include "Platform/SpringBoard/FBSystemService.hpp"
#include "Platform/SpringBoard/_CDBatterySaver.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/SpringBoard.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

namespace Simulator {

namespace {

struct FBSystemService : StandIn {
    using Root = FBSystemService;

    void exitAndRelaunch(bool)
    {
        ActivityLog::shared().record("relaunch");
        if (relaunchRequested())
            relaunchRequested()();
    }
};

void switchLowPower(long mode)
{
    ActivityLog::shared().record("batterySaver", {{"mode", mode}});
    DeviceState::shared().battery.lowPower = mode != 0;
    if (Shell* shell = Shell::current())
        shell->deviceChanged();
}

struct _CDBatterySaver : StandIn {
    using Root = _CDBatterySaver;

    long powerMode() const { return DeviceState::shared().battery.lowPower; }
    long setMode(long mode)
    {
        switchLowPower(mode);
        return mode;
    }
};

struct _PMLowPowerMode : StandIn {
    using Root = _PMLowPowerMode;

    bool setPowerMode(long mode, const NS::Object&)
    {
        switchLowPower(mode);
        return true;
    }
};

}

struct RelaunchRequest {
    std::function<void()> callback;
};

std::function<void()>& relaunchRequested()
{
    return Phone::part<RelaunchRequest>().callback;
}

static const StandInClass fbSystemService("FBSystemService", "NSObject", [](Binder<FBSystemService>& binder) {
    binder.classMethod<"sharedInstance", &sharedObject<FB::SystemService>>()
        .def<"exitAndRelaunch:", &FBSystemService::exitAndRelaunch>()
        .add();
});

static const StandInClass cdBatterySaver("_CDBatterySaver", "NSObject",
    BroughtBy{"/System/Library/PrivateFrameworks/CoreDuet.framework/CoreDuet"}, [](Binder<_CDBatterySaver>& binder) {
        binder.classMethod<"batterySaver", &sharedObject<CD::BatterySaver>>()
            .def<"getPowerMode", &_CDBatterySaver::powerMode>()
            .def<"setMode:", &_CDBatterySaver::setMode>()
            .add();
    });

static const StandInClass pmLowPowerMode("_PMLowPowerMode", "NSObject",
    BroughtBy{"/System/Library/PrivateFrameworks/LowPowerMode.framework/LowPowerMode"},
    [](Binder<_PMLowPowerMode>& binder) {
        binder.classMethod<"sharedInstance", &sharedObject<PM::LowPowerMode>>()
            .def<"setPowerMode:fromSource:", &_PMLowPowerMode::setPowerMode>()
            .add();
    });

}
