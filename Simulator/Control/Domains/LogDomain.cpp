// log.*: what the extension asked of the phone.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/Runtime/ActivityLog.hpp"

namespace Simulator::Control {

void addLogMethods(PhoneContext& context)
{
    context.add("log.take", [](const Json&) { return Json{{"records", ActivityLog::shared().take()}}; });
}

}
