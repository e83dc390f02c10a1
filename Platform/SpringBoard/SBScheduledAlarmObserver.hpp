// The shell's watch over the clock app's alarms.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace SB {

class ScheduledAlarm : public ObjC::Class_<ScheduledAlarm, NS::Object, "MTAlarm"> {
public:
    using Class_::Class_;
    NS::Date nextFireDate() const { return send<NS::Date, "nextFireDate">(); }
};

class AlarmCache : public ObjC::Class_<AlarmCache, NS::Object, "MTAlarmCache"> {
public:
    using Class_::Class_;
    ScheduledAlarm nextAlarm() const { return send<ScheduledAlarm, "nextAlarm">(); }
};

class AlarmManager : public ObjC::Class_<AlarmManager, NS::Object, "MTAlarmManager"> {
public:
    using Class_::Class_;
    AlarmCache cache() const { return send<AlarmCache, "cache">(); }
};

class ScheduledAlarmObserver : public ObjC::Class_<ScheduledAlarmObserver, NS::Object, "SBScheduledAlarmObserver"> {
public:
    using Class_::Class_;
    static ScheduledAlarmObserver sharedInstance() { return sendClass<ScheduledAlarmObserver, "sharedInstance">(); }
    AlarmManager alarmManager() const { return valueForKey<AlarmManager>("_alarmManager"_ns); }
};

}
