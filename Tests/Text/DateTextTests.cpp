// Dates as text in the phone's calendars, and what patterns that make no sense give.
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/DateText.hpp"

#include <gtest/gtest.h>

#include <limits>

using namespace Simulator;

namespace {

/// 2020-11-15 21:41:07 UTC, a Sunday.
constexpr double evening = 627169267;

std::string text(std::u16string_view pattern, std::string_view calendar = "gregorian",
    std::string_view locale = "en_US", std::string_view zone = "UTC", double date = evening)
{
    return toUtf8(formatDate(date, {pattern, locale, calendar, zone}));
}

}

TEST(DateText, FollowsThePattern)
{
    EXPECT_EQ(text(u"HH:mm"), "21:41");
    EXPECT_EQ(text(u"H:mm"), "21:41");
    EXPECT_EQ(text(u"h:mm a"), "9:41 PM");
    EXPECT_EQ(text(u"hh.mm"), "09.41");
    EXPECT_EQ(text(u"EEE,MMM d"), "Sun,Nov 15");
    EXPECT_EQ(text(u"EEEE 'the' d 'o''clock'"), "Sunday the 15 o'clock");
    EXPECT_EQ(text(u"D w yyyy ss"), "320 47 2020 07");
}

TEST(DateText, SpeaksTheLocalesLanguage)
{
    EXPECT_EQ(text(u"EEEE, d MMMM", "gregorian", "de_DE"), "Sonntag, 15 November");
    EXPECT_EQ(text(u"EEEE", "gregorian", "he_IL"), "יום ראשון");
    EXPECT_EQ(text(u"h a", "gregorian", "ar_EG"), "٩ م");
    EXPECT_EQ(text(u"EEEE", "gregorian", "pt-BR"), "domingo");
    EXPECT_EQ(text(u"EEEE", "gregorian", "no such locale"), text(u"EEEE", "gregorian", ""));
}

TEST(DateText, KnowsThePhonesCalendars)
{
    EXPECT_EQ(text(u"d MMMM y", "hebrew"), "28 Heshvan 5781");
    EXPECT_EQ(text(u"d MMMM", "chinese"), "1 Tenth Month");
    EXPECT_EQ(text(u"d MMMM y", "islamic-civil"), "29 Rabiʻ I 1442");
    EXPECT_EQ(text(u"d MMMM y", "buddhist"), "15 November 2563");
    EXPECT_EQ(text(u"y", "republicOfChina"), "109");
    EXPECT_EQ(text(u"d", "persian"), "25");
    EXPECT_EQ(text(u"y", "ethiopic-amete-mihret"), "2013");
}

TEST(DateText, TakesTheLocalesCalendarUnlessToldOtherwise)
{
    EXPECT_EQ(text(u"y", "", "th_TH"), "2563");
    EXPECT_EQ(text(u"y", "gregorian", "th_TH"), "2020");
    EXPECT_EQ(text(u"y", "", "en_US@calendar=buddhist"), "2563");
    EXPECT_EQ(text(u"y", "no-such-calendar"), "2020");
}

TEST(DateText, TellsTheTimeOfTheZone)
{
    EXPECT_EQ(text(u"d HH:mm", "gregorian", "en_US", "Asia/Jerusalem"), "15 23:41");
    EXPECT_EQ(text(u"d HH:mm", "gregorian", "en_US", "Asia/Tokyo"), "16 06:41");
    EXPECT_EQ(text(u"HH:mm", "gregorian", "en_US", "GMT+0530"), "03:11");
    EXPECT_EQ(text(u"HH:mm", "gregorian", "en_US", "Nowhere/Land"), "21:41");
    EXPECT_EQ(text(u"HH:mm", "gregorian", "en_US", ""), "21:41");
}

TEST(DateText, IsEmptyForAnEmptyPattern)
{
    EXPECT_EQ(text(u""), "");
}

TEST(DateText, KeepsTextInUnmatchedQuotes)
{
    EXPECT_EQ(text(u"HH 'h"), "21 h");
    EXPECT_EQ(text(u"'"), "");
    EXPECT_EQ(text(u"'''"), "'");
    EXPECT_EQ(text(u"''"), "'");
}

TEST(DateText, IsEmptyForUnknownLetters)
{
    EXPECT_EQ(text(u"i"), "");
    EXPECT_EQ(text(u"HH mm n"), "");
}

TEST(DateText, TakesPatternsOfAbsurdLength)
{
    EXPECT_EQ(text(std::u16string(100000, u'.')), std::string(100000, '.'));
    EXPECT_EQ(text(u"'" + std::u16string(100000, u'H')), std::string(100000, 'H'));
    std::u16string many;
    std::string expected;
    for (int i = 0; i < 33333; ++i) {
        many += u"HH:";
        expected += "21:";
    }
    EXPECT_EQ(text(many), expected);
    EXPECT_LE(text(std::u16string(100000, u'y')).size(), 100000u);
    EXPECT_LE(text(std::u16string(100000, u'E')).size(), 100000u);
    EXPECT_LE(text(std::u16string(100000, u'S')).size(), 100000u);
}

TEST(DateText, TakesLoneSurrogatesAndEmoji)
{
    EXPECT_EQ(text(u"🕘 HH"), "🕘 21");
    EXPECT_EQ(formatDate(evening, {u"\xD800HH", "en_US", "gregorian", "UTC"}),
        u"\xD800"
        u"21");
}

TEST(DateText, TakesAbsurdDatesInEveryCalendar)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const char* calendar :
        {"gregorian", "hebrew", "chinese", "islamic", "islamic-civil", "buddhist", "japanese"}) {
        EXPECT_EQ(text(u"d", calendar, "en_US", "UTC", std::numeric_limits<double>::quiet_NaN()), "");
        for (double date : {infinity, -infinity, 1e300, -1e15, 63113904000.0, -63114076800.0})
            EXPECT_NE(text(u"d MMMM y", calendar, "en_US", "UTC", date), "") << calendar << date;
    }
}

TEST(DateText, ParsesWhatItWrote)
{
    const DateStyle style{u"yyyy-MM-dd'T'HH:mm:ss", "en_US", "gregorian", "UTC"};
    EXPECT_EQ(parseDate(u"2020-11-15T21:41:07", style), evening);
    EXPECT_FALSE(parseDate(u"2020-11-15", style));
    EXPECT_FALSE(parseDate(u"2020-11-15T21:41:07 and more", style));
    EXPECT_FALSE(parseDate(u"2020-13-15T21:41:07", style));
    EXPECT_FALSE(parseDate(u"", style));
}

TEST(DateText, KnowsTheLocalesOwnPatterns)
{
    EXPECT_EQ(toUtf8(patternForStyles(1, 0, "en_US", "")), "M/d/yy");
    EXPECT_EQ(toUtf8(patternForStyles(0, 1, "de_DE", "")), "HH:mm");
    EXPECT_EQ(toUtf8(patternForStyles(4, 0, "de_DE", "gregorian")), "EEEE, d. MMMM y");
    EXPECT_EQ(patternForStyles(0, 0, "en_US", ""), u"");
    EXPECT_EQ(patternForStyles(99, -7, "en_US", ""), u"");
    EXPECT_EQ(toUtf8(patternForSkeleton(u"MMMMd", "de_DE")), "d. MMMM");
}

TEST(DateText, KnowsTheNamesOfDaysAndMonths)
{
    const auto days = dateSymbols(DateSymbols::weekdays, SymbolWidth::abbreviated, false, "en_US", "gregorian");
    ASSERT_EQ(days.size(), 7u);
    EXPECT_EQ(days.front(), u"Sun");
    EXPECT_EQ(dateSymbols(DateSymbols::months, SymbolWidth::wide, true, "de_DE", "gregorian").at(2), u"März");
    EXPECT_EQ(dateSymbols(DateSymbols::halvesOfDay, SymbolWidth::wide, false, "en_US", "").back(), u"PM");
    EXPECT_EQ(dateSymbols(DateSymbols::eras, SymbolWidth::abbreviated, false, "en_US", "buddhist").at(0), u"BE");
}
