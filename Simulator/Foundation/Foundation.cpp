// Mends Foundation once, subject by subject.
#include "Simulator/Foundation/Foundation.hpp"

#include "Platform/ObjC/Runtime.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/Registrations.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

namespace Simulator {

void registerFoundation()
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    ObjC::AutoreleasePool pool;
    registerNSLog();
    registerDispatch();
    registerNSObject();
    registerNSString();
    registerNSNumber();
    registerNSDate();
    registerNSTimer();
    registerNSLocale();
    registerNSTimeZone();
    registerNSCalendar();
    registerNSDateFormatter();
    registerNSFileManager();
    registerNSData();
    registerNSPropertyList();
    registerNSJSONSerialization();
    registerNSBundle();
    // Each callback has a pool of its own, as each turn of the phone's run loop has.
    Loop::shared().setScope([]() -> std::shared_ptr<void> { return std::make_shared<ObjC::AutoreleasePool>(); });
    ActivityLog::shared().setClock([] { return Loop::shared().uptime(); });
    PhoneFiles::shared().setWriteObserver([](const std::string& path, int) {
        ActivityLog::shared().record("fileWrite", {{"path", path}});
    });
    PhoneFiles::shared().setOpenObserver([] { ExtensionCounts::shared().add(Count::FileOpens); });
}

}
