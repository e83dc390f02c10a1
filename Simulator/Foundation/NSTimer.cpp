// NSTimer on the phone's loop.
#include "Platform/Foundation/NSTimer.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <utility>

namespace Simulator {

namespace {

/// What the phone takes for a non-positive interval.
double effectiveInterval(double interval)
{
    constexpr double shortestInterval = 0.0001;
    return interval > 0 ? interval : shortestInterval;
}

class PhoneTimer : public StandIn {
public:
    using Root = PhoneTimer;

    void initWithFireDate(const NS::Date& date, double interval, const ObjC::Object& target, SEL action,
        const ObjC::Object& userInfo, bool repeats)
    {
        m_fireDate = date ? date.timeIntervalSinceReferenceDate() : Loop::shared().now();
        m_interval = repeats ? effectiveInterval(interval) : 0;
        m_target = target;
        m_action = action;
        m_userInfo = userInfo;
    }

    void schedule() { scheduleAfter(m_fireDate - Loop::shared().now()); }
    /// The loop holds the timer, and the timer its target, until it is invalidated.
    void scheduleAfter(double delay)
    {
        if (!m_valid || m_work)
            return;
        const auto run = [timer = self()] { standIn<PhoneTimer>(timer.raw()).fireDue(); };
        m_work = m_interval > 0 ? Loop::shared().scheduleRepeating(delay, m_interval, run)
                              : Loop::shared().schedule(delay, run, WorkKind::timer);
    }

    void fire()
    {
        if (!m_valid || m_firing)
            return;
        const ObjC::Object keep = self();
        const ObjC::Object target = m_target;
        m_firing = true;
        if (m_action)
            ObjC::sendMessage<void>(target.raw(), m_action, keep);
        else if (target)
            target.send<void, "invoke">(); // an invocation
        m_firing = false;
        if (m_interval == 0)
            invalidate();
    }

    void invalidate()
    {
        const ObjC::Object keep = self();
        m_valid = false;
        Loop::shared().cancel(std::exchange(m_work, 0));
        m_target = nullptr;
        m_userInfo = nullptr;
    }

    bool isValid() const { return m_valid; }
    double timeInterval() const { return m_interval; }
    ObjC::Object userInfo() const { return m_userInfo; }

    NS::Date fireDate() const
    {
        const auto due = Loop::shared().dueIn(m_work);
        return NS::Date::dateWithTimeIntervalSinceReferenceDate(due ? Loop::shared().now() + *due : m_fireDate);
    }

    void setFireDate(const NS::Date& date)
    {
        if (!date || !m_valid)
            return;
        m_fireDate = date.timeIntervalSinceReferenceDate();
        if (Loop::shared().cancel(std::exchange(m_work, 0)))
            schedule();
    }

    double tolerance() const { return m_tolerance; }
    void setTolerance(double tolerance) { m_tolerance = tolerance; }

private:
    void fireDue()
    {
        if (m_interval == 0)
            m_work = 0;
        fire();
    }

    double m_fireDate = 0;
    double m_interval = 0; // 0 for a timer that fires once
    double m_tolerance = 0;
    ObjC::Object m_target;
    SEL m_action = nullptr;
    ObjC::Object m_userInfo;
    TimerId m_work = 0;
    bool m_valid = true;
    bool m_firing = false;
};

NS::Timer NSTimer_timer(
    Class self, SEL, double interval, ObjC::Object target, SEL action, ObjC::Object userInfo, bool repeats)
{
    const NS::Date date
        = NS::Date::dateWithTimeIntervalSinceReferenceDate(Loop::shared().now() + effectiveInterval(interval));
    id timer = ObjC::sendMessage<id>(reinterpret_cast<id>(self), ObjC::selector<"alloc">());
    return NS::Timer::adopting(
        ObjC::sendMessage<id>(timer, ObjC::selector<"initWithFireDate:interval:target:selector:userInfo:repeats:">(),
            date, interval, target, action, userInfo, repeats));
}

NS::Timer NSTimer_scheduledTimer(
    Class self, SEL command, double interval, ObjC::Object target, SEL action, ObjC::Object userInfo, bool repeats)
{
    const NS::Timer timer = NSTimer_timer(self, command, interval, target, action, userInfo, repeats);
    // Not by way of the date, whose grain is coarser than a delay's.
    standIn<PhoneTimer>(timer.raw()).scheduleAfter(effectiveInterval(interval));
    return timer;
}

/// The phone has one run loop, and all its modes are one.
void NSRunLoop_addTimer(id, SEL, ObjC::Object timer, ObjC::Object)
{
    if (auto* phoneTimer = standInOrNull<PhoneTimer>(timer))
        phoneTimer->schedule();
}

}

static const StandInClass phoneTimer("PhoneTimer", "NSTimer", [](Binder<PhoneTimer>& binder) {
    // GNUstep's run loop begins with a housekeeping timer of its own, which is none of the phone's.
    classNamed("NSRunLoop").send<ObjC::Object, "mainRunLoop">();

    binder.init<"initWithFireDate:interval:target:selector:userInfo:repeats:", &PhoneTimer::initWithFireDate>()
        .def<"fire", &PhoneTimer::fire>()
        .def<"invalidate", &PhoneTimer::invalidate>()
        .def<"isValid", &PhoneTimer::isValid>()
        .def<"timeInterval", &PhoneTimer::timeInterval>()
        .def<"userInfo", &PhoneTimer::userInfo>()
        .def<"fireDate", &PhoneTimer::fireDate>()
        .def<"setFireDate:", &PhoneTimer::setFireDate>()
        .def<"tolerance", &PhoneTimer::tolerance>()
        .def<"setTolerance:", &PhoneTimer::setTolerance>()
        .add();
    refuseInherited("PhoneTimer", "NSTimer");
    allocateAs("NSTimer", "PhoneTimer");
    replaceClassMethod<NSTimer_timer>("NSTimer", "timerWithTimeInterval:target:selector:userInfo:repeats:");
    replaceClassMethod<NSTimer_scheduledTimer>(
        "NSTimer", "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:");
    replaceInFamily<NSRunLoop_addTimer>("NSRunLoop", "addTimer:forMode:");
});

}
