// The next alarm.
#include "Platform/SpringBoard/SBScheduledAlarmObserver.hpp"

#include "CompanionsTest.hpp"

using namespace Simulator;

namespace {

class Alarms : public CompanionsTest {
protected:
    static SB::ScheduledAlarm next()
    {
        return SB::ScheduledAlarmObserver::sharedInstance().alarmManager().cache().nextAlarm();
    }
};

}

TEST_F(Alarms, AreNoneUnlessOneIsSet)
{
    ASSERT_TRUE(SB::ScheduledAlarmObserver::sharedInstance().alarmManager().cache());
    EXPECT_FALSE(next());
}

TEST_F(Alarms, FireAtTheirLocalTime)
{
    DeviceState::shared().alarm = "2020-11-16T06:30:00";
    EXPECT_EQ(next().nextFireDate().timeIntervalSinceReferenceDate(), *momentOfLocalTime("2020-11-16T06:30:00"));
}

TEST_F(Alarms, OfThePastAreNone)
{
    DeviceState::shared().alarm = "2020-11-15T21:40:59";
    EXPECT_FALSE(next());
}

TEST_F(Alarms, AreOverOnceTheyRang)
{
    DeviceState::shared().alarm = "2020-11-15T22:00:00";
    EXPECT_TRUE(next());
    Loop::shared().advance(20 * 60);
    EXPECT_FALSE(next());
}

TEST_F(Alarms, KeepTheirLocalTimeInAnotherTimeZone)
{
    DeviceState::shared().alarm = "2020-11-16T06:30:00";
    const double there = next().nextFireDate().timeIntervalSinceReferenceDate();
    PhoneLocale::shared().timeZone = "Asia/Jerusalem";
    EXPECT_EQ(next().nextFireDate().timeIntervalSinceReferenceDate(), there - 2 * 3600);
}

TEST_F(Alarms, WithoutADateAreNone)
{
    DeviceState::shared().alarm = "soon";
    EXPECT_FALSE(next());
}
