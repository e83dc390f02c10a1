// The shell's watch over the clock app's alarms: observer, manager, cache, alarm.
#include "Platform/SpringBoard/SBScheduledAlarmObserver.hpp"

#include "Simulator/Companions/Registrations.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

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
        ExtensionCounts::shared().add(Count::AlarmReads);
        return nextFireMoment() ? SB::ScheduledAlarm::make() : SB::ScheduledAlarm();
    }
};

class MTAlarmManager : public StandIn {
public:
    using Root = MTAlarmManager;

    void init() { cache_ = SB::AlarmCache::make(); }
    SB::AlarmCache cache() const { return cache_; }

private:
    SB::AlarmCache cache_;
};

class SBScheduledAlarmObserver : public StandIn {
public:
    using Root = SBScheduledAlarmObserver;

    static SB::ScheduledAlarmObserver sharedInstance()
    {
        static ObjC::Variable<SB::ScheduledAlarmObserver> observer;
        if (!observer)
            observer = SB::ScheduledAlarmObserver::make();
        return observer;
    }
    void init() { setIvar("_alarmManager", SB::AlarmManager::make()); }
};

}

void registerScheduledAlarms()
{
    Binder<MTAlarm>("MTAlarm", "NSObject").def<"nextFireDate", &MTAlarm::nextFireDate>().add();
    Binder<MTAlarmCache>("MTAlarmCache", "NSObject").def<"nextAlarm", &MTAlarmCache::nextAlarm>().add();
    Binder<MTAlarmManager>("MTAlarmManager", "NSObject")
        .init<"init", &MTAlarmManager::init>()
        .def<"cache", &MTAlarmManager::cache>()
        .add();
    Binder<SBScheduledAlarmObserver>("SBScheduledAlarmObserver", "NSObject")
        .classMethod<"sharedInstance", &SBScheduledAlarmObserver::sharedInstance>()
        .init<"init", &SBScheduledAlarmObserver::init>()
        .ivar<"_alarmManager">()
        .add();
}

}
