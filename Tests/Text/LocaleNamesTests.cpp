// Locales and languages as the phone writes them, however they were written.
#include "Simulator/Text/LocaleNames.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

TEST(LocaleNames, HaveAHyphenBeforeTheScriptAndAnUnderscoreBeforeTheRegion)
{
    for (const char* name : {"zh-Hans-CN", "zh_Hans_CN", "zh-Hans_CN", "zh_Hans-CN", "ZH-hans-cn"})
        EXPECT_EQ(localeName(name), "zh-Hans_CN") << name;
    EXPECT_EQ(localeName("en-US"), "en_US");
    EXPECT_EQ(localeName("sr-Latn-RS"), "sr-Latn_RS");
    EXPECT_EQ(localeName("es-419"), "es_419");
    EXPECT_EQ(localeName("zh-Hant"), "zh-Hant");
    EXPECT_EQ(localeName("de"), "de");
}

TEST(LocaleNames, KeepVariantsAndKeywords)
{
    EXPECT_EQ(localeName("en-US-POSIX"), "en_US_POSIX");
    EXPECT_EQ(localeName("ar-SA@calendar=islamic"), "ar_SA@calendar=islamic");
    EXPECT_EQ(localeName("de-DE-u-ca-buddhist"), "de_DE@calendar=buddhist");
}

TEST(LocaleNames, OfLanguagesHaveHyphens)
{
    EXPECT_EQ(languageName("zh_Hans_CN"), "zh-Hans-CN");
    EXPECT_EQ(languageName("pt_BR"), "pt-BR");
    EXPECT_EQ(languageName("pt-BR"), "pt-BR");
    EXPECT_EQ(languageName("he"), "he");
}

TEST(LocaleNames, AreStable)
{
    for (const char* name : {"zh-Hans-CN", "en_US_POSIX", "abcdefgh-12", "de-u-ca-buddhist", "xx-1-22-333-4444"}) {
        EXPECT_EQ(localeName(localeName(name)), localeName(name)) << name;
        EXPECT_FALSE(localeName(name).empty()) << name;
    }
}
