// NSDate by the phone's clock. A date may be no number, as on the phone, where GNUstep would raise.
#include "Platform/Foundation/NSDate.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/Text/DateText.hpp"

#include <cmath>
#include <string>

extern "C" double CFAbsoluteTimeGetCurrent()
{
    return Simulator::Loop::shared().now();
}

namespace Simulator {

namespace {

IMP initConcrete = nullptr;

id initAt(id self, double seconds)
{
    return ObjC::sendMessage<id>(self, ObjC::selector<"initWithTimeIntervalSinceReferenceDate:">(), seconds);
}

NS::Date dateAt(Class type, double seconds)
{
    return NS::Date::adopting(
        initAt(ObjC::sendMessage<id>(reinterpret_cast<id>(type), ObjC::selector<"alloc">()), seconds));
}

id NSGDate_initWithTimeIntervalSinceReferenceDate(id self, SEL command, double seconds)
{
    id date = ObjC::callImplementation<id>(initConcrete, self, command, std::isnan(seconds) ? 0.0 : seconds);
    if (std::isnan(seconds))
        ObjC::InstanceVariable<double>(date, "_seconds_since_ref").set(seconds);
    return date;
}

id NSDate_init(id self, SEL)
{
    return initAt(self, Loop::shared().now());
}

id NSDate_initWithTimeIntervalSinceNow(id self, SEL, double seconds)
{
    return initAt(self, Loop::shared().now() + seconds);
}

double NSDate_timeIntervalSinceNow(NS::Date self, SEL)
{
    return self.timeIntervalSinceReferenceDate() - Loop::shared().now();
}

double NSDate_classTimeIntervalSinceReferenceDate(id, SEL)
{
    return Loop::shared().now();
}

NS::Date NSDate_date(Class self, SEL)
{
    return dateAt(self, Loop::shared().now());
}

NS::Date NSDate_dateWithTimeIntervalSinceNow(Class self, SEL, double seconds)
{
    return dateAt(self, Loop::shared().now() + seconds);
}

/// GNUstep raises for a date that is no number.
NS::String NSDate_description(NS::Date self, SEL)
{
    const double seconds = self.timeIntervalSinceReferenceDate();
    if (!std::isfinite(seconds))
        return stringOf(std::to_string(seconds));
    return stringOf(formatDate(seconds, {u"yyyy-MM-dd HH:mm:ss '+0000'", "en_US_POSIX", "gregorian", "UTC"}));
}

double NSProcessInfo_systemUptime(id, SEL)
{
    return Loop::shared().uptime();
}

}

static const Mending nsDate("NSDate", [] {
    initConcrete = replaceMethod<NSGDate_initWithTimeIntervalSinceReferenceDate>(
        "NSGDate", "initWithTimeIntervalSinceReferenceDate:");
    replaceMethod<NSDate_description>("NSDate", "description");
    replaceInFamily<NSDate_init>("NSDate", "init");
    replaceInFamily<NSDate_initWithTimeIntervalSinceNow>("NSDate", "initWithTimeIntervalSinceNow:");
    replaceInFamily<NSDate_timeIntervalSinceNow>("NSDate", "timeIntervalSinceNow");
    replaceClassMethod<NSDate_date>("NSDate", "date");
    replaceClassMethod<NSDate_dateWithTimeIntervalSinceNow>("NSDate", "dateWithTimeIntervalSinceNow:");
    replaceClassMethod<NSDate_classTimeIntervalSinceReferenceDate>("NSDate", "timeIntervalSinceReferenceDate");
    replaceInFamily<NSProcessInfo_systemUptime>("NSProcessInfo", "systemUptime");
});

}
