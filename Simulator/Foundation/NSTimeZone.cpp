// The phone's time zone.
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Text/CalendarMath.hpp"

namespace Simulator {

namespace {

IMP stockTimeZoneWithName = nullptr;

/// A host without zone files still knows the zone's present difference from UTC.
ObjC::Object NSTimeZone_local(Class self, SEL)
{
    const std::string& name = PhoneLocale::shared().timeZone;
    const ObjC::Object receiver(reinterpret_cast<id>(self));
    if (const auto zone = receiver.send<ObjC::Object, "timeZoneWithName:">(stringOf(name)))
        return zone;
    const long offset = zoneOffset(Loop::shared().now(), name);
    return receiver.send<ObjC::Object, "timeZoneForSecondsFromGMT:">(offset);
}

/// GNUstep complains in the log about an empty name.
ObjC::Object NSTimeZone_timeZoneWithName(id self, SEL command, NS::String name)
{
    if (!name || name.length() == 0)
        return nullptr;
    return ObjC::callImplementation<ObjC::Object>(stockTimeZoneWithName, self, command, name);
}

}

static const Mending nsTimeZone("NSTimeZone", [] {
    const SEL withName = sel_registerName("timeZoneWithName:");
    stockTimeZoneWithName = method_getImplementation(class_getClassMethod(objc_getClass("NSTimeZone"), withName));
    replaceClassMethod<NSTimeZone_timeZoneWithName>("NSTimeZone", "timeZoneWithName:");
    for (const char* selectorName : {"localTimeZone", "systemTimeZone", "defaultTimeZone"})
        replaceClassMethod<NSTimeZone_local>("NSTimeZone", selectorName);
});

}
