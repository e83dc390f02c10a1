// NSDate follows the phone's clock.
#include "FoundationTest.hpp"

#include <cmath>
#include <limits>

using namespace Simulator;

class NSDate : public FoundationTest { };

extern "C" double CFAbsoluteTimeGetCurrent();

TEST_F(NSDate, IsThePhonesNow)
{
    EXPECT_EQ(NS::Date::date().timeIntervalSinceReferenceDate(), evening);
    EXPECT_EQ(NS::Date::make().timeIntervalSinceReferenceDate(), evening);
    EXPECT_EQ((NS::Date::sendClass<NS::Date, "new">().timeIntervalSinceReferenceDate()), evening);
    EXPECT_EQ((NS::Date::sendClass<double, "timeIntervalSinceReferenceDate">()), evening);
    EXPECT_EQ(CFAbsoluteTimeGetCurrent(), evening);
    Loop::shared().advance(60);
    EXPECT_EQ(NS::Date::date().timeIntervalSinceReferenceDate(), evening + 60);
    EXPECT_EQ((classNamed("NSProcessInfo").send<ObjC::Object, "processInfo">().send<double, "systemUptime">()), 60);
}

TEST_F(NSDate, IsMeasuredFromThePhonesNow)
{
    EXPECT_EQ((NS::Date::sendClass<NS::Date, "dateWithTimeIntervalSinceNow:">(5.0).timeIntervalSinceReferenceDate()),
        evening + 5);
    EXPECT_EQ((NS::Date::make<"initWithTimeIntervalSinceNow:">(-5.0).timeIntervalSinceReferenceDate()), evening - 5);
    const NS::Date later = date(evening + 90);
    EXPECT_EQ((later.send<double, "timeIntervalSinceNow">()), 90);
    Loop::shared().advance(100);
    EXPECT_EQ((later.send<double, "timeIntervalSinceNow">()), -10);
}

TEST_F(NSDate, MayBeNoNumber)
{
    EXPECT_TRUE(std::isnan(date(std::numeric_limits<double>::quiet_NaN()).timeIntervalSinceReferenceDate()));
    EXPECT_EQ(date(std::numeric_limits<double>::infinity()).timeIntervalSinceReferenceDate(),
        std::numeric_limits<double>::infinity());
}

TEST_F(NSDate, DescribesItselfWhateverItIs)
{
    const auto description = [](double seconds) { return textOf(date(seconds).send<NS::String, "description">()); };
    EXPECT_EQ(description(evening), "2020-11-15 21:41:07 +0000");
    EXPECT_EQ(description(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(description(-std::numeric_limits<double>::infinity()), "-inf");
}
