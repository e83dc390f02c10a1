// log.*, counts.*: what the extension asked of the phone, and how often.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

namespace Simulator::Control {

void addLogMethods(PhoneContext& context)
{
    context.add("log.take", [](const Json&) {
        ActivityLog& log = ActivityLog::shared();
        const std::size_t dropped = log.dropped();
        return Json{{"records", log.take()}, {"dropped", dropped}};
    });
    context.add("counts.take", [](const Json&) { return Json{{"counts", ExtensionCounts::shared().take()}}; });
}

}
