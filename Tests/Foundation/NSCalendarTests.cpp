// NSCalendar and NSDateComponents as on the phone.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSCalendar.hpp"

#include <limits>

using namespace Simulator;

namespace {

constexpr double day = 86400;

class NSCalendar : public FoundationTest {
protected:
    static NS::Calendar calendar(const char* identifier) { return NS::Calendar::withIdentifier(stringOf(identifier)); }
    static ObjC::Object components()
    {
        return ObjC::Object::adopting(classNamed("NSDateComponents").send<id, "new">());
    }
};

}

TEST_F(NSCalendar, IsMadeByThePhonesIdentifiers)
{
    for (const char* identifier :
        {"gregorian", "hebrew", "chinese", "islamic-civil", "buddhist", "japanese", "iso8601"}) {
        ASSERT_TRUE(calendar(identifier)) << identifier;
        EXPECT_EQ(textOf(calendar(identifier).send<NS::String, "calendarIdentifier">()), identifier);
        EXPECT_TRUE(NS::Calendar::calendarWithIdentifier(stringOf(identifier)));
    }
    EXPECT_EQ(textOf(NS::String(NSCalendarIdentifierHebrew)), "hebrew");
    EXPECT_EQ(textOf(NS::String(NSCalendarIdentifierChinese)), "chinese");
    EXPECT_EQ(textOf(NS::String(NSCalendarIdentifierIslamicCivil)), "islamic-civil");
    EXPECT_EQ(textOf(NS::String(NSCalendarIdentifierBuddhist)), "buddhist");
}

TEST_F(NSCalendar, IsNilForAnUnknownIdentifier)
{
    EXPECT_FALSE(calendar("nonsense"));
    EXPECT_FALSE(calendar(""));
    EXPECT_FALSE(NS::Calendar::withIdentifier(nullptr));
    EXPECT_FALSE(NS::Calendar::calendarWithIdentifier("nonsense"_ns));
}

TEST_F(NSCalendar, ReadsSingleComponents)
{
    const auto gregorian = calendar("gregorian");
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::hour, date(evening)), 21);
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::minute, date(evening)), 41);
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::second, date(evening)), 7);
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::day, date(evening)), 15);
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::month, date(evening)), 11);
    EXPECT_EQ(calendar("hebrew").component(NS::CalendarUnit::year, date(evening)), 5781);
    EXPECT_EQ((gregorian.send<long, "component:fromDate:">(1UL << 9, date(evening))), 1);
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::hour, nullptr), std::numeric_limits<long>::max());
}

TEST_F(NSCalendar, ReadsSetsOfComponents)
{
    const auto parts = calendar("gregorian").send<ObjC::Object, "components:fromDate:">(0x1FEUL, date(evening));
    EXPECT_EQ((parts.send<long, "hour">()), 21);
    EXPECT_EQ((parts.send<long, "year">()), 2020);
    EXPECT_EQ((parts.send<long, "weekday">()), std::numeric_limits<long>::max());
}

TEST_F(NSCalendar, FollowsThePhonesZoneUnlessItHasItsOwn)
{
    const auto gregorian = calendar("gregorian");
    PhoneLocale::shared().timeZone = "Asia/Tokyo";
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::hour, date(evening)), 6);
    gregorian.send<void, "setTimeZone:">(
        classNamed("NSTimeZone").send<ObjC::Object, "timeZoneWithName:">("Asia/Jerusalem"_ns));
    EXPECT_EQ(gregorian.component(NS::CalendarUnit::hour, date(evening)), 23);
}

TEST_F(NSCalendar, MovesDates)
{
    const auto gregorian = calendar("gregorian");
    EXPECT_EQ(gregorian.dateByAddingUnit(NS::CalendarUnit::day, 1, date(evening)).timeIntervalSinceReferenceDate(),
        evening + day);
    EXPECT_EQ(gregorian.dateByAddingUnit(NS::CalendarUnit::hour, -1, date(evening)).timeIntervalSinceReferenceDate(),
        evening - 3600);
    const auto parts = components();
    parts.send<void, "setDay:">(2L);
    parts.send<void, "setMinute:">(-1L);
    EXPECT_EQ((gregorian.send<NS::Date, "dateByAddingComponents:toDate:options:">(parts, date(evening), 0UL)
                      .timeIntervalSinceReferenceDate()),
        evening + 2 * day - 60);
    EXPECT_FALSE(gregorian.dateByAddingUnit(NS::CalendarUnit::day, 1, nullptr));
}

TEST_F(NSCalendar, BuildsDates)
{
    const auto parts = components();
    for (const auto& [setter, value] :
        {std::pair("setYear:", 2020L), std::pair("setMonth:", 11L), std::pair("setDay:", 15L),
            std::pair("setHour:", 21L), std::pair("setMinute:", 41L), std::pair("setSecond:", 7L)})
        ObjC::sendMessage<void>(parts.raw(), sel_registerName(setter), value);
    EXPECT_EQ(
        (calendar("gregorian").send<NS::Date, "dateFromComponents:">(parts).timeIntervalSinceReferenceDate()), evening);
}

TEST_F(NSCalendar, KnowsToday)
{
    const auto current = NS::Calendar::currentCalendar();
    EXPECT_TRUE((current.send<bool, "isDateInToday:">(date(evening - 3600))));
    EXPECT_FALSE((current.send<bool, "isDateInToday:">(date(evening + 3 * 3600))));
    EXPECT_TRUE((current.send<bool, "isDateInTomorrow:">(date(evening + 3 * 3600))));
    EXPECT_EQ((current.send<NS::Date, "startOfDayForDate:">(date(evening)).timeIntervalSinceReferenceDate()),
        evening - (21 * 3600 + 41 * 60 + 7));
    EXPECT_FALSE((current.send<bool, "isDate:inSameDayAsDate:">(date(evening), NS::Date())));
}

TEST_F(NSCalendar, CurrentIsTheLocales)
{
    EXPECT_EQ(textOf(NS::Calendar::currentCalendar().send<NS::String, "calendarIdentifier">()), "gregorian");
    PhoneLocale::shared().locale = "th_TH";
    EXPECT_EQ(textOf(NS::Calendar::currentCalendar().send<NS::String, "calendarIdentifier">()), "buddhist");
}

TEST_F(NSCalendar, MeasuresTheWayBetweenDates)
{
    const auto way = calendar("gregorian")
                         .send<ObjC::Object, "components:fromDate:toDate:options:">(
                             1UL << 5 | 1UL << 6, date(evening), date(evening + 2 * 3600 + 300), 0UL);
    EXPECT_EQ((way.send<long, "hour">()), 2);
    EXPECT_EQ((way.send<long, "minute">()), 5);
}

TEST_F(NSCalendar, IsEqualToItsCopy)
{
    const auto hebrew = calendar("hebrew");
    EXPECT_TRUE((hebrew.send<bool, "isEqual:">(hebrew.send<ObjC::Object, "copy">())));
    EXPECT_FALSE((hebrew.send<bool, "isEqual:">(calendar("buddhist"))));
}
