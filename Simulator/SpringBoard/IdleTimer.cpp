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
    bool isActive(const NS::String& reason) const { return reasons.contains(std::string(reason.utf8())); }

    std::set<std::string> reasons;

private:
    static void record(const char* action, const NS::String& reason)
    {
        ActivityLog::shared().record("idleTimer", {{"action", action}, {"reason", std::string(reason.utf8())}});
    }
};

struct SBDashBoardIdleTimerController : StandIn {
    using Root = SBDashBoardIdleTimerController;

    void initWithCoverSheet(const NS::Object&)
    {
        setIvar("_dashBoardIdleTimerProvider", makeObject("SBDashBoardIdleTimerProvider"));
    }
    void add(const NS::String& reason) { provider().send<void, "addDisabledIdleTimerAssertionReason:">(reason); }
    void remove(const NS::String& reason) { provider().send<void, "removeDisabledIdleTimerAssertionReason:">(reason); }

private:
    NS::Object provider() const { return ivar<NS::Object>("_dashBoardIdleTimerProvider"); }
};

}

static const StandInClass sbDashBoardIdleTimerProvider(
    "SBDashBoardIdleTimerProvider", "NSObject", [](Binder<SBDashBoardIdleTimerProvider>& binder) {
        using Provider = SBDashBoardIdleTimerProvider;
        binder.def<"addDisabledIdleTimerAssertionReason:", &Provider::add>()
            .def<"removeDisabledIdleTimerAssertionReason:", &Provider::remove>()
            .def<"isDisabledAssertionActiveForReason:", &Provider::isActive>()
            .add();
    });

static const StandInClass sbDashBoardIdleTimerController(
    "SBDashBoardIdleTimerController", "NSObject", [](Binder<SBDashBoardIdleTimerController>& binder) {
        using Controller = SBDashBoardIdleTimerController;
        binder.init<"initWithCoverSheetViewController:", &Controller::initWithCoverSheet>()
            .def<"addIdleTimerDisabledAssertionReason:", &Controller::add>()
            .def<"removeIdleTimerDisabledAssertionReason:", &Controller::remove>()
            .ivar<"_dashBoardIdleTimerProvider">()
            .add();
    });

}
