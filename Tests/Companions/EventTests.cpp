// Calendar events by interval.
#include "Platform/EventKit/EKEventStore.hpp"

#include "CompanionsTest.hpp"

using namespace Simulator;

namespace {

class Events : public CompanionsTest {
protected:
    static NS::Date at(const std::string& localTime)
    {
        return NS::Date::dateWithTimeIntervalSinceReferenceDate(*momentOfLocalTime(localTime));
    }
    static std::vector<std::string> titles(const std::string& from, const std::string& to)
    {
        const auto store = EK::EventStore::make();
        const NS::Array events = store.eventsMatchingPredicate(store.predicateForEvents(at(from), at(to)));
        std::vector<std::string> found;
        for (unsigned long index = 0; index < events.count(); ++index)
            found.push_back(text(events.at<EK::Event>(index).title()));
        return found;
    }
};

using Titles = std::vector<std::string>;

}

// The platform promises no order, so the last comes first.
TEST_F(Events, ComeInAnOrderThatNobodyWants)
{
    DeviceState::shared().events = {{"Late", "2020-11-16T20:00:00"}, {"Early", "2020-11-16T08:00:00"},
        {"Beyond", "2020-11-18T08:00:00"}, {"Past", "2020-11-15T08:00:00"}};
    EXPECT_EQ(titles("2020-11-15T21:41:00", "2020-11-16T21:41:00"), (Titles{"Late", "Early"}));
}

TEST_F(Events, CountWhileTheyLast)
{
    DeviceState::shared().events
        = {{"Running", "2020-11-15T21:00:00"}, {"Today", "2020-11-15T00:00:00", true}, {"Over", "2020-11-15T20:30:00"}};
    EXPECT_EQ(titles("2020-11-15T21:41:00", "2020-11-16T21:41:00"), (Titles{"Running", "Today"}));
}

TEST_F(Events, AreNoneInAnEmptyInterval)
{
    DeviceState::shared().events = {{"Now", "2020-11-15T21:41:00"}, {"Today", "2020-11-15T00:00:00", true}};
    EXPECT_EQ(titles("2020-11-15T21:41:00", "2020-11-15T21:41:00"), Titles{});
    EXPECT_EQ(titles("2020-11-15T21:41:00", "2020-11-14T21:41:00"), Titles{});
}

TEST_F(Events, TellTitleStartAndWhetherTheyLastAllDay)
{
    DeviceState::shared().events = {{"Holiday", "2020-11-16T09:30:00", true}, {"Dentist", "2020-11-16T09:30:00"}};
    const auto store = EK::EventStore::make();
    const NS::Array events
        = store.eventsMatchingPredicate(store.predicateForEvents(at("2020-11-16T00:00:00"), at("2020-11-17T00:00:00")));
    ASSERT_EQ(events.count(), 2u);
    const auto holiday = events.at<EK::Event>(1);
    EXPECT_TRUE(holiday.isAllDay());
    EXPECT_EQ(holiday.startDate().timeIntervalSinceReferenceDate(), *momentOfLocalTime("2020-11-16T00:00:00"));
    const auto dentist = events.at<EK::Event>(0);
    EXPECT_EQ(text(dentist.title()), "Dentist");
    EXPECT_FALSE(dentist.isAllDay());
    EXPECT_EQ(dentist.startDate().timeIntervalSinceReferenceDate(), *momentOfLocalTime("2020-11-16T09:30:00"));
}

TEST_F(Events, WithoutADateAreNone)
{
    DeviceState::shared().events = {{"Never", "tomorrow"}, {"Torn", "2020-11-16T09:3"}};
    EXPECT_EQ(titles("2020-01-01T00:00:00", "2021-01-01T00:00:00"), Titles{});
}

TEST_F(Events, MatchNoPredicateOfAnotherKind)
{
    DeviceState::shared().events = {{"Dentist", "2020-11-16T09:30:00"}};
    const auto store = EK::EventStore::make();
    EXPECT_EQ(store.eventsMatchingPredicate({}).count(), 0u);
    EXPECT_EQ(store.eventsMatchingPredicate("tomorrow"_ns).count(), 0u);
}
