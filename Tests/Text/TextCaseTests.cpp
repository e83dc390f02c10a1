// Upper, lower and capitalised text, and alphabetical order.
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/TextCase.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

namespace {

std::string upper(std::string_view text, std::string_view locale = {})
{
    return toUtf8(uppercase(toUtf16(text), locale));
}
std::string lower(std::string_view text, std::string_view locale = {})
{
    return toUtf8(lowercase(toUtf16(text), locale));
}
std::string capital(std::string_view text, std::string_view locale = {})
{
    return toUtf8(capitalized(toUtf16(text), locale));
}
int compare(std::string_view one, std::string_view other, std::string_view locale = "en_US", bool caseSensitive = false)
{
    return compareText(toUtf16(one), toUtf16(other), locale, caseSensitive);
}

}

TEST(TextCase, UppercasesByTheFullMapping)
{
    EXPECT_EQ(upper("straße"), "STRASSE");
    EXPECT_EQ(upper("ﬁn ŉ"), "FIN ʼN");
    EXPECT_EQ(upper("φως"), "ΦΩΣ");
    EXPECT_EQ(upper("נובמבר 15"), "נובמבר 15");
    EXPECT_EQ(upper("𐐨"), "𐐀");
}

TEST(TextCase, LowercasesWithTheFinalSigma)
{
    EXPECT_EQ(lower("SUN, NOV 15"), "sun, nov 15");
    EXPECT_EQ(lower("ΟΔΟΣ"), "οδος");
    EXPECT_EQ(lower("İ"), "i̇");
}

TEST(TextCase, FollowsALocaleOnlyIfGiven)
{
    EXPECT_EQ(upper("i"), "I");
    EXPECT_EQ(upper("i", "tr_TR"), "İ");
    EXPECT_EQ(lower("I", "tr_TR"), "ı");
    EXPECT_EQ(capital("istanbul", "tr_TR"), "İstanbul");
}

TEST(TextCase, CapitalisesTheFirstLetterOfEachWord)
{
    EXPECT_EQ(capital("SUN,NOV 15"), "Sun,Nov 15");
    EXPECT_EQ(capital("sunday, november 15"), "Sunday, November 15");
    EXPECT_EQ(capital("DON'T stop"), "Don't Stop");
    EXPECT_EQ(capital("don’t"), "Don’t");
    EXPECT_EQ(capital("PARTLY-CLOUDY/windy"), "Partly-Cloudy/Windy");
    EXPECT_EQ(capital("21st 9am"), "21St 9Am");
    EXPECT_EQ(capital("15. nov."), "15. Nov.");
}

TEST(TextCase, CapitalisesLettersThatBecomeSeveral)
{
    EXPECT_EQ(capital("ßa"), "Ssa");
    EXPECT_EQ(capital("ﬁn"), "Fin");
    EXPECT_EQ(capital("ǆungla"), "ǅungla");
    EXPECT_EQ(capital("ΑΣ ΟΔΟΣ"), "Ας Οδος");
    EXPECT_EQ(capital("e\u0301TE\u0301"), "E\u0301te\u0301");
}

TEST(TextCase, LeavesTextWithoutCaseAlone)
{
    for (const char* text : {"", " ", "15", "יום ראשון", "日曜日", "🕘", "--"}) {
        EXPECT_EQ(capital(text), text);
        EXPECT_EQ(upper(text), text);
        EXPECT_EQ(lower(text), text);
    }
    EXPECT_EQ(capitalized(u"\xD800"
                          u"a\xDC00"),
        u"\xD800"
        u"A\xDC00");
}

TEST(TextOrder, IgnoresCaseUnlessAskedFor)
{
    EXPECT_EQ(compare("Avenir", "avenir"), 0);
    EXPECT_LT(compare("avenir", "Baskerville"), 0);
    EXPECT_GT(compare("Zapf", "avenir"), 0);
    EXPECT_NE(compare("Avenir", "avenir", "en_US", true), 0);
    EXPECT_NE(compare("resume", "résumé"), 0);
}

TEST(TextOrder, IsTheLocales)
{
    EXPECT_LT(compare("ä", "z", "de_DE"), 0);
    EXPECT_GT(compare("ä", "z", "sv_SE"), 0);
}
