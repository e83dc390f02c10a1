// What keeps the screen from going dark: assertions by reason, one for each.
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"

#include <set>

namespace Simulator {

namespace {

struct SBDashBoardIdleTimerProvider : StandIn {
    using Root = SBDashBoardIdleTimerProvider;

    void add(const NS::String& reason)
    {
        reasons.insert(std::string(reason.utf8()));
        record("add", reason);
    }
    void remove(const NS::String& reason)
    {
        reasons.erase(std::string(reason.utf8()));
        record("remove", reason);
    }
    bool isDisabled() const { return !reasons.empty(); }

    std::set<std::string> reasons;

private:
    static void record(const char* action, const NS::String& reason)
    {
        ActivityLog::shared().record("idleTimer", {{"action", action}, {"reason", std::string(reason.utf8())}});
    }
};

struct SBDashBoardIdleTimerController : StandIn {
    using Root = SBDashBoardIdleTimerController;

    void init() { setIvar("_idleTimerProvider", makeObject("SBDashBoardIdleTimerProvider")); }
};

}

static const StandInClass sbDashBoardIdleTimerProvider(
    "SBDashBoardIdleTimerProvider", "NSObject", [](Binder<SBDashBoardIdleTimerProvider>& binder) {
        using Provider = SBDashBoardIdleTimerProvider;
        binder.def<"addDisabledIdleTimerAssertionReason:", &Provider::add>()
            .def<"removeDisabledIdleTimerAssertionReason:", &Provider::remove>()
            .def<"isIdleTimerDisabled", &Provider::isDisabled>()
            .add();
    });

static const StandInClass sbDashBoardIdleTimerController(
    "SBDashBoardIdleTimerController", "NSObject", [](Binder<SBDashBoardIdleTimerController>& binder) {
        binder.init<"init", &SBDashBoardIdleTimerController::init>().ivar<"_idleTimerProvider">().add();
    });

}
