// UTF-8 and UTF-16, sound and ill-formed.
#include "Simulator/Base/Utf.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

TEST(Utf, ComesBackAsItWas)
{
    const std::string text = "aé שעון 🕘 \uFFFF";
    EXPECT_EQ(toUtf8(toUtf16(text)), text);
    EXPECT_EQ(toUtf16("🕘"), u"🕘");
}

TEST(Utf, IllFormedTextIsShownAsSuch)
{
    EXPECT_EQ(toUtf8(u"a\xD800z"), "a\uFFFDz");
    EXPECT_EQ(toUtf8(u"\xDC00\xD83D"), "\uFFFD\uFFFD");
    EXPECT_EQ(toUtf16("a\xFFz"), u"a\xFFFDz");
}

TEST(Utf, IsToldFromOtherBytes)
{
    for (const char* text : {"", "plain", "é", "שעון", "🕘", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(text)) << text;
    for (const char* bytes : {"\x80", "\xC3", "\xC3(", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
             "\xF8\x88\x80\x80\x80", "\xFF"})
        EXPECT_FALSE(isUtf8(bytes)) << bytes;
}

TEST(Utf, CodePointsAreAppended)
{
    std::string text;
    for (const std::uint32_t codePoint : {0x41u, 0xE9u, 0x5E9u, 0xFFFFu, 0x1F558u})
        appendUtf8(text, codePoint);
    EXPECT_EQ(text, "Aéש\uFFFF🕘");
    text.clear();
    for (const std::uint32_t wrong : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu})
        appendUtf8(text, wrong);
    EXPECT_EQ(text, "\uFFFD\uFFFD\uFFFD\uFFFD");
}
