// Whole days, minute by minute, and what the labels say in each: locks, charging, an alarm, events, midnight, a
// journey, and the nights in which the clocks are changed.
#include "Tests/EndToEnd/StripScenario.hpp"
#include "Tests/Support/WallClock.hpp"

namespace {

constexpr const char* attachment = "\xEF\xBF\xBC"; // where an icon stands in a line
constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
constexpr const char* newYork = "EST5EDT,M3.2.0,M11.1.0";

constexpr int at(int hour, int minute = 0)
{
    return hour * 60 + minute;
}

/// A phone and, beside it, a clock that shares nothing with it but its start.
class Day {
public:
    Day(const std::string& start, const Json& settings)
        : m_clock(berlin, start)
        , m_phone(Phone::at(start)
                     .timeZone("Europe/Berlin")
                     .settings(settings)
                     .weather(sunnyWeather)
                     .withoutWallpaper()
                     .start())
    {
        run(1);
    }

    Phone& phone() { return m_phone; }
    Support::WallClock& clock() { return m_clock; }

    void run(double seconds)
    {
        m_phone.advance(seconds);
        m_clock.advance(seconds);
    }
    void runToNextMinute() { run(m_clock.toNextMinute()); }

    /// The cover sheet goes up and down again, and the refresh of its appearance is over.
    void look()
    {
        m_phone.call("phone.unlock");
        m_phone.call("phone.coverSheet");
        run(1);
    }

    void expectTime()
    {
        EXPECT_EQ(m_phone.label("_timeLabel").text, m_clock.read("%I.%M"));
        EXPECT_EQ(m_phone.info().at("time"), m_clock.read("%Y-%m-%dT%H:%M:%S"));
    }

private:
    Support::WallClock m_clock;
    Phone m_phone;
};

/// What the day brings, by the clock on the wall. It begins at noon on the 15th.
class Plan {
public:
    explicit Plan(const Support::WallClock& clock)
        : m_tomorrow(clock.read("%d") == "16")
        , m_minute(clock.minuteOfDay())
    {
    }

    bool isAsleep() const { return (m_tomorrow && m_minute < at(5)) || (!m_tomorrow && between(at(13), at(13, 20))); }
    bool isCharging() const { return m_tomorrow ? m_minute < at(7) : m_minute >= at(22); }
    /// Down from 90 by one percent in ten minutes, and up again by one in two minutes.
    double level() const
    {
        constexpr double atNoon = 0.9, atTen = atNoon - (22 - 12) * 6 * 0.01;
        const double charged = std::min(atTen + sinceTen() / 2 * 0.01, 1.0);
        if (!m_tomorrow && m_minute < at(22))
            return atNoon - (m_minute - at(12)) / 10 * 0.01;
        return isCharging() ? charged : 1 - (m_minute - at(7)) / 10 * 0.01;
    }

    std::string alarm() const { return m_tomorrow && m_minute >= at(6, 30) ? "No Alarms" : "6:30"; }
    std::string half() const { return m_tomorrow && m_minute >= at(6, 30) ? "" : "AM"; }
    /// An event counts until it is over, an hour after its start, and from a day before it.
    std::string event() const
    {
        if (!m_tomorrow)
            return m_minute < at(19) ? "6:00PM Concert" : "9:30AM Dentist";
        return m_minute < at(10, 30) ? "9:30AM Dentist" : "No events today";
    }

private:
    bool between(int first, int end) const { return m_minute >= first && m_minute < end; }
    int sinceTen() const { return m_tomorrow ? m_minute + at(2) : m_minute - at(22); }

    bool m_tomorrow;
    int m_minute;
};

void expectStrip(Phone& phone, const Plan& plan)
{
    EXPECT_TRUE(phone.view("_sunLabel").onScreen);
    EXPECT_EQ(phone.label("_sunLabel").text, plan.alarm());
    EXPECT_EQ(phone.label("_pm").text, plan.half());
    EXPECT_EQ(phone.label("_batteryLabel").text,
        std::to_string(static_cast<int>(static_cast<float>(plan.level()) * 100)) + "%");
    EXPECT_EQ(iconIn(phone, "_BG"), plan.isCharging() ? "Battery16/ChargingBG" : "Battery16/BG");
}

Json eventsOfTheDay()
{
    return Json::array({{{"title", "Dentist"}, {"start", "2020-11-16T09:30:00"}},
        {{"title", "Concert"}, {"start", "2020-11-15T18:00:00"}}});
}

/// The minutes of a night, from one moment to another some hours later, as the time label has them.
std::vector<std::string> minutesOf(Day& day, int hours)
{
    std::vector<std::string> minutes;
    for (int i = 0; i < hours * 60; ++i) {
        day.runToNextMinute();
        day.expectTime();
        minutes.push_back(day.phone().label("_timeLabel").text);
    }
    return minutes;
}

/// The text before which and after which a clock jumps.
std::string after(const std::vector<std::string>& minutes, const std::string& last, int occurrence = 1)
{
    for (std::size_t i = 0; i + 1 < minutes.size(); ++i) {
        if (minutes[i] == last && --occurrence == 0)
            return minutes[i + 1];
    }
    return "never";
}

}

TEST(Day, EveryMinuteOfItSaysWhatItShould)
{
    Day day("2020-11-15T12:00:00", {{"dateOption", "7"}, {"sunOption", "3"}});
    auto& phone = day.phone();
    phone.call("device.set", {{"alarm", "2020-11-16T06:30:00"}, {"events", eventsOfTheDay()}});
    bool asleep = false;
    int minutes = 0, looks = 0;
    while (minutes < 24 * 60 - 1) {
        day.runToNextMinute();
        ++minutes;
        const Plan plan(day.clock());
        SCOPED_TRACE(day.clock().read("%d %H:%M"));
        phone.call("device.set",
            {{"battery", {{"level", plan.level()}, {"state", plan.isCharging() ? "charging" : "unplugged"}}}});
        if (plan.isAsleep() != asleep)
            phone.call(plan.isAsleep() ? "phone.lock" : "phone.wake");
        asleep = plan.isAsleep();
        if (asleep)
            continue;
        day.expectTime();
        EXPECT_EQ(phone.label("_dateLabel").text, day.clock().read("%a,%b %d ") + attachment + plan.event());
        if (minutes % 10 == 0) {
            day.look();
            expectStrip(phone, plan);
            ++looks;
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << "the first minute that is wrong";
    }
    EXPECT_EQ(day.clock().read("%d %H:%M"), "16 11:59");
    EXPECT_GT(looks, 100);
    EXPECT_EQ(phone.info().at("starts"), 1);
}

TEST(Day, AJourneyIsSeenFromTheNextMinuteOn)
{
    Day day("2020-11-15T02:55:00", {{"dateOption", "0"}});
    for (int i = 0; i < 10; ++i) {
        day.runToNextMinute();
        day.expectTime();
    }
    day.phone().call("device.set", {{"timeZone", "America/New_York"}});
    day.clock().setZone(newYork);
    for (int i = 0; i < 200; ++i) {
        day.runToNextMinute();
        day.expectTime();
        EXPECT_EQ(day.phone().label("_dateLabel").text, day.clock().read("%a,%b %d"));
    }
    EXPECT_EQ(day.clock().read("%d %H:%M"), "15 00:25") << "it was the evening before, over there";
}

TEST(Day, InSpringTheHourFromTwoToThreeIsLeftOut)
{
    Day day("2020-03-29T00:30:00", {{"sunOption", "3"}, {"dateOption", "0"}});
    day.phone().call("device.set", {{"alarm", "2020-03-29T02:30:00"}});
    day.look();
    EXPECT_EQ(day.phone().label("_sunLabel").text, "3:30") << "the hour that there is not";
    const auto minutes = minutesOf(day, 4);
    EXPECT_EQ(after(minutes, "01.59"), "03.00");
    EXPECT_EQ(minutes.back(), "05.30");
    EXPECT_EQ(day.phone().label("_dateLabel").text, "Sun,Mar 29");
}

TEST(Day, InAutumnItComesTwice)
{
    Day day("2020-10-25T00:30:00", {{"sunOption", "3"}, {"dateOption", "0"}});
    day.phone().call("device.set", {{"alarm", "2020-10-25T06:30:00"}});
    day.look();
    EXPECT_EQ(day.phone().label("_sunLabel").text, "6:30");
    const auto minutes = minutesOf(day, 4);
    EXPECT_EQ(after(minutes, "02.59"), "02.00");
    EXPECT_EQ(after(minutes, "02.59", 2), "03.00");
    EXPECT_EQ(minutes.back(), "03.30");
    EXPECT_EQ(day.phone().label("_dateLabel").text, "Sun,Oct 25");
}

TEST(Day, ADayOfTwentyThreeHoursHasItsEventsAndItsMidnight)
{
    Day day("2020-03-28T23:58:00", {{"sunOption", "4"}, {"dateOption", "0"}});
    day.phone().call("device.set", {{"events", Json::array({{{"title", "Walk"}, {"start", "2020-03-29T23:30:00"}}})}});
    day.look();
    // A day ahead is the same time of the next day, however long it is until then.
    EXPECT_EQ(day.phone().label("_sunLabel").text, "11:30PM Walk");
    day.phone().call("device.set", {{"events", Json::array({{{"title", "Sleep"}, {"start", "2020-03-29T23:59:30"}}})}});
    day.look();
    EXPECT_EQ(day.phone().label("_sunLabel").text, "No events today");
    for (int i = 0; i < 5; ++i) {
        day.runToNextMinute();
        day.expectTime();
        EXPECT_EQ(day.phone().label("_dateLabel").text, day.clock().read("%a,%b %d"));
    }
    EXPECT_EQ(day.phone().label("_dateLabel").text, "Sun,Mar 29");
}
