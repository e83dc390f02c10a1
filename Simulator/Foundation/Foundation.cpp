// What a phone with Foundation does at its start, and the user's language and region.
#include "Platform/ObjC/Runtime.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

namespace Simulator {

static const Phone::AtStart connectsLibraries([](Phone&) {
    // Each callback has a pool of its own, as each turn of the phone's run loop has.
    Loop::shared().setScope([]() -> std::shared_ptr<void> { return std::make_shared<ObjC::AutoreleasePool>(); });
    ActivityLog::shared().setClock([] { return Loop::shared().uptime(); });
    PhoneFiles::shared().setWriteObserver([](const std::string& path, int) {
        ActivityLog::shared().record("fileWrite", {{"path", path}});
    });
    PhoneFiles::shared().setOpenObserver([] { ExtensionCounts::shared().add(Count::fileOpens); });
});

}
