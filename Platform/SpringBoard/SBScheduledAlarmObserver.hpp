// The shell's watch over the clock app's alarms.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace SB {

class ScheduledAlarm : public ObjC::PrivateClass_<ScheduledAlarm, NS::Object, "MTAlarm"> {
public:
    using PrivateClass_::PrivateClass_;
    NS::Date nextFireDate() const { return send<NS::Date, "nextFireDate">(); }
};

class AlarmCache : public ObjC::PrivateClass_<AlarmCache, NS::Object, "MTAlarmCache"> {
public:
    using PrivateClass_::PrivateClass_;
    /// Replaced on a queue of the alarm manager's own, so it is asked for only where an alarm is shown.
    ScheduledAlarm nextAlarm() const { return send<ScheduledAlarm, "nextAlarm">(); }
};

class AlarmManager : public ObjC::PrivateClass_<AlarmManager, NS::Object, "MTAlarmManager"> {
public:
    using PrivateClass_::PrivateClass_;
    AlarmCache cache() const { return send<AlarmCache, "cache">(); }
};

class ScheduledAlarmObserver
    : public ObjC::PrivateClass_<ScheduledAlarmObserver, NS::Object, "SBScheduledAlarmObserver"> {
public:
    using PrivateClass_::PrivateClass_;
    static ScheduledAlarmObserver sharedInstance() { return sendClass<ScheduledAlarmObserver, "sharedInstance">(); }
    AlarmManager alarmManager() const { return ivar<AlarmManager, "_alarmManager">(); }
};

}
