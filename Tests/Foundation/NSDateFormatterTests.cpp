// NSDateFormatter as on the phone.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDateFormatter.hpp"
#include "Simulator/Runtime/StandInRegistry.hpp"

#include <limits>

using namespace Simulator;

class NSDateFormatter : public FoundationTest {
protected:
    static NS::DateFormatter formatter(const char* pattern)
    {
        const auto result = NS::DateFormatter::formatter();
        result.setDateFormat(stringOf(pattern));
        return result;
    }
    static std::string text(const NS::DateFormatter& formatter)
    {
        return textOf(formatter.stringFromDate(date(evening)));
    }
    static NS::Locale locale(const char* identifier)
    {
        return NS::Locale::make<"initWithLocaleIdentifier:">(stringOf(identifier));
    }
};

TEST_F(NSDateFormatter, FollowsItsPattern)
{
    EXPECT_EQ(text(formatter("HH.mm")), "21.41");
    EXPECT_EQ(text(formatter("H:mm")), "21:41");
    EXPECT_EQ(text(formatter("h:mm a")), "9:41 PM");
    EXPECT_EQ(text(formatter("EEEE, MMM d")), "Sunday, Nov 15");
    EXPECT_EQ(text(formatter("")), "");
    EXPECT_EQ(text(NS::DateFormatter::formatter()), "");
}

TEST_F(NSDateFormatter, IsAnNSDateFormatter)
{
    const auto made = formatter("HH");
    EXPECT_TRUE(made.is<NS::DateFormatter>());
    EXPECT_TRUE((made.send<NS::String, "dateFormat">().isEqualToString("HH"_ns)));
}

TEST_F(NSDateFormatter, KnowsThePhonesCalendars)
{
    const auto made = formatter("d MMMM y");
    for (const auto& [identifier, expected] : {std::pair("hebrew", "28 Heshvan 5781"),
             std::pair("chinese", "1 Tenth Month 2020"), std::pair("islamic-civil", "29 Rabiʻ I 1442"),
             std::pair("buddhist", "15 November 2563"), std::pair("gregorian", "15 November 2020")}) {
        made.setCalendar(NS::Calendar::withIdentifier(stringOf(identifier)));
        EXPECT_EQ(text(made).substr(0, 11), std::string(expected).substr(0, 11)) << identifier;
    }
    made.setCalendar(NS::Calendar::calendarWithIdentifier(NS::String(NSCalendarIdentifierHebrew)));
    EXPECT_EQ(text(made), "28 Heshvan 5781");
    made.setCalendar(nullptr);
    EXPECT_EQ(text(made), "15 November 2020");
}

TEST_F(NSDateFormatter, SpeaksItsLocaleOrThePhones)
{
    const auto made = formatter("EEEE");
    made.setLocale(locale("de_DE"));
    EXPECT_EQ(text(made), "Sonntag");
    made.setLocale(nullptr);
    EXPECT_EQ(text(made), "Sunday");
    PhoneLocale::shared().locale = "fr_FR";
    EXPECT_EQ(text(made), "dimanche");
    EXPECT_EQ(text(formatter("EEEE")), "dimanche");
}

TEST_F(NSDateFormatter, TellsTheTimeOfItsZoneOrThePhones)
{
    const auto made = formatter("HH:mm");
    PhoneLocale::shared().timeZone = "Asia/Jerusalem";
    EXPECT_EQ(text(made), "23:41");
    made.send<void, "setTimeZone:">(classNamed("NSTimeZone").send<ObjC::Object, "timeZoneForSecondsFromGMT:">(-3600L));
    EXPECT_EQ(text(made), "20:41");
    made.send<void, "setTimeZone:">(classNamed("NSTimeZone").send<ObjC::Object, "timeZoneWithName:">("Asia/Tokyo"_ns));
    EXPECT_EQ(text(made), "06:41");
}

TEST_F(NSDateFormatter, KeepsItsPatternWhenItsStylesAreSetToNone)
{
    const auto made = formatter("HH:mm");
    made.setDateStyle(NS::DateFormatterStyle::none);
    made.setTimeStyle(NS::DateFormatterStyle::none);
    EXPECT_EQ(text(made), "21:41");
    made.send<void, "setTimeStyle:">(1UL);
    EXPECT_EQ(text(made), "9:41 PM");
    made.setDateFormat("mm"_ns);
    EXPECT_EQ(text(made), "41");
}

TEST_F(NSDateFormatter, GivesNilForNoDate)
{
    const auto made = formatter("HH:mm");
    EXPECT_FALSE(made.stringFromDate(nullptr));
    EXPECT_FALSE((made.send<NS::String, "stringFromDate:">("text"_ns)));
    EXPECT_EQ(textOf(made.stringFromDate(date(std::numeric_limits<double>::quiet_NaN()))), "");
}

TEST_F(NSDateFormatter, SurvivesPatternsThatMakeNoSense)
{
    EXPECT_EQ(text(formatter("'unmatched HH")), "unmatched HH");
    EXPECT_EQ(text(formatter("nothing known")), "");
    EXPECT_EQ(text(formatter(std::string(100000, '-').c_str())), std::string(100000, '-'));
    const auto made = formatter("HH");
    made.setDateFormat(nullptr);
    EXPECT_EQ(text(made), "");
}

TEST_F(NSDateFormatter, ReadsDates)
{
    const auto made = formatter("yyyy-MM-dd HH:mm:ss");
    EXPECT_EQ(
        (made.send<NS::Date, "dateFromString:">("2020-11-15 21:41:07"_ns).timeIntervalSinceReferenceDate()), evening);
    EXPECT_FALSE((made.send<NS::Date, "dateFromString:">("tomorrow"_ns)));
    EXPECT_FALSE((made.send<NS::Date, "dateFromString:">(NS::String())));
}

TEST_F(NSDateFormatter, IsCopiedWithAllItsSettings)
{
    const auto made = formatter("EEEE HH");
    made.setLocale(locale("de_DE"));
    made.setCalendar(NS::Calendar::withIdentifier("buddhist"_ns));
    const auto copy = made.send<NS::DateFormatter, "copy">();
    made.setDateFormat("mm"_ns);
    EXPECT_EQ(text(copy), "Sonntag 21");
}

TEST_F(NSDateFormatter, KnowsTheNamesOfDaysAndMonths)
{
    const auto made = formatter("");
    const auto days = made.send<NS::Array, "shortWeekdaySymbols">();
    ASSERT_EQ(days.count(), 7u);
    EXPECT_EQ(textOf(days.at<NS::String>(0)), "Sun");
    EXPECT_EQ(textOf(made.send<NS::Array, "monthSymbols">().at<NS::String>(10)), "November");
    EXPECT_EQ(textOf(made.send<NS::String, "PMSymbol">()), "PM");
}

TEST_F(NSDateFormatter, FindsTheLocalesOwnPattern)
{
    EXPECT_EQ(textOf(classNamed("NSDateFormatter")
                         .send<NS::String, "dateFormatFromTemplate:options:locale:">("MMMMd"_ns, 0UL, locale("de_DE"))),
        "d. MMMM");
    const auto made = formatter("");
    made.send<void, "setLocalizedDateFormatFromTemplate:">("MMMd"_ns);
    EXPECT_EQ(text(made), "Nov 15");
}

TEST_F(NSDateFormatter, LeavesNothingBehind)
{
    const long before = StandInRegistry::shared().liveCount();
    {
        ObjC::AutoreleasePool inner;
        for (int times = 0; times < 10; ++times)
            text(formatter("HH:mm"));
    }
    EXPECT_EQ(StandInRegistry::shared().liveCount(), before);
}
