// The shell's watch over the clock app's alarms: observer, manager, cache, alarm.
#include "Platform/SpringBoard/SBScheduledAlarmObserver.hpp"

#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"
#include "Simulator/Runtime/SharedObject.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

namespace {

/// The device's alarm, unless it rang already.
std::optional<double> nextFireMoment()
{
    const auto& alarm = DeviceState::shared().alarm;
    const auto moment = alarm ? momentOfLocalTime(*alarm) : std::nullopt;
    return moment && *moment >= NS::Date::date().timeIntervalSinceReferenceDate() ? moment : std::nullopt;
}

class MTAlarm : public StandIn {
public:
    using Root = MTAlarm;

    NS::Date nextFireDate() const
    {
        const auto moment = nextFireMoment();
        return moment ? NS::Date::dateWithTimeIntervalSinceReferenceDate(*moment) : NS::Date();
    }
};

class MTAlarmCache : public StandIn {
public:
    using Root = MTAlarmCache;

    SB::ScheduledAlarm nextAlarm() const
    {
        ExtensionCounts::shared().add(Count::alarmReads);
        return nextFireMoment() ? SB::ScheduledAlarm::make() : SB::ScheduledAlarm();
    }
};

class MTAlarmManager : public StandIn {
public:
    using Root = MTAlarmManager;

    void init() { m_cache = SB::AlarmCache::make(); }
    SB::AlarmCache cache() const { return m_cache; }

private:
    SB::AlarmCache m_cache;
};

class SBScheduledAlarmObserver : public StandIn {
public:
    using Root = SBScheduledAlarmObserver;

    void init() { setIvar("_alarmManager", SB::AlarmManager::make()); }
};

}

static const StandInClass mtAlarm(
    "MTAlarm", "NSObject", [](Binder<MTAlarm>& binder) { binder.def<"nextFireDate", &MTAlarm::nextFireDate>().add(); });

static const StandInClass mtAlarmCache("MTAlarmCache", "NSObject",
    [](Binder<MTAlarmCache>& binder) { binder.def<"nextAlarm", &MTAlarmCache::nextAlarm>().add(); });

static const StandInClass mtAlarmManager("MTAlarmManager", "NSObject", [](Binder<MTAlarmManager>& binder) {
    binder.init<"init", &MTAlarmManager::init>().def<"cache", &MTAlarmManager::cache>().add();
});

static const StandInClass sbScheduledAlarmObserver(
    "SBScheduledAlarmObserver", "NSObject", [](Binder<SBScheduledAlarmObserver>& binder) {
        binder.classMethod<"sharedInstance", &sharedObject<SB::ScheduledAlarmObserver>>()
            .init<"init", &SBScheduledAlarmObserver::init>()
            .ivar<"_alarmManager">()
            .add();
    });

}
