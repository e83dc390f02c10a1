// Services of the system beside the shell: restarting it, and the battery saver.
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Registrations.hpp"
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

struct _CDBatterySaver : StandIn {
    using Root = _CDBatterySaver;

    long powerMode() const { return DeviceState::shared().battery.lowPower; }
    bool setMode(int mode)
    {
        ActivityLog::shared().record("batterySaver", {{"mode", mode}});
        DeviceState::shared().battery.lowPower = mode != 0;
        if (Shell* shell = Shell::current())
            shell->deviceChanged();
        return true;
    }
};

}

std::function<void()>& relaunchRequested()
{
    static auto* callback = new std::function<void()>;
    return *callback;
}

void registerSystemService()
{
    Binder<FBSystemService>("FBSystemService", "NSObject")
        .classMethod<"sharedInstance", &sharedObject<"FBSystemService">>()
        .def<"exitAndRelaunch:", &FBSystemService::exitAndRelaunch>()
        .add();
}

void registerBatterySaver()
{
    Binder<_CDBatterySaver>("_CDBatterySaver", "NSObject")
        .classMethod<"batterySaver", &sharedObject<"_CDBatterySaver">>()
        .def<"getPowerMode", &_CDBatterySaver::powerMode>()
        .def<"setMode:", &_CDBatterySaver::setMode>()
        .add();
}

}
