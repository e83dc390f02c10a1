// Bytes as base 64 and back.
#include "Simulator/Base/Base64.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

TEST(Base64, IsWrittenWithItsPadding)
{
    EXPECT_EQ(toBase64(""), "");
    EXPECT_EQ(toBase64("A"), "QQ==");
    EXPECT_EQ(toBase64("AB"), "QUI=");
    EXPECT_EQ(toBase64("ABC"), "QUJD");
    EXPECT_EQ(toBase64("\xFB\xFF\xBE"), "+/++");
}

TEST(Base64, ComesBackAsItWas)
{
    std::string bytes;
    for (int length = 0; length < 300; ++length) {
        EXPECT_EQ(fromBase64(toBase64(bytes)), bytes) << length;
        bytes += static_cast<char>(length);
    }
}

TEST(Base64, IsNothingElse)
{
    for (const char* text : {"Q", "QQ=", "====", "Q===", "QQ==QQ==", "Q Q=", "QU\nJ", "QUI-", "QU\xC3\xA9"})
        EXPECT_FALSE(fromBase64(text)) << text;
}
