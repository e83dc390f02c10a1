// Locale, languages and time zone of the phone.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSLocale.hpp"

using namespace Simulator;

class NSLocale : public FoundationTest {
protected:
    static std::string part(const char* identifier, const char* key)
    {
        return textOf(NS::Locale::sendClass<NS::Dictionary, "componentsFromLocaleIdentifier:">(stringOf(identifier))
                          .objectForKey<NS::String>(stringOf(key)));
    }
    static std::string zone()
    {
        return textOf(classNamed("NSTimeZone").send<ObjC::Object, "localTimeZone">().send<NS::String, "name">());
    }
};

TEST_F(NSLocale, CurrentIsThePhones)
{
    EXPECT_EQ(textOf(NS::Locale::currentLocale().localeIdentifier()), "en_US");
    PhoneLocale::shared().locale = "he_IL";
    EXPECT_EQ(textOf(NS::Locale::currentLocale().localeIdentifier()), "he_IL");
}

TEST_F(NSLocale, HyphensMeanWhatUnderscoresDo)
{
    for (const auto& [given, expected] : {std::pair{"en-US", "en_US"}, {"zh-Hans-CN", "zh-Hans_CN"},
             {"zh_Hans_CN", "zh-Hans_CN"}, {"zh-Hans_CN", "zh-Hans_CN"}, {"sr-Latn-RS", "sr-Latn_RS"}, {"de", "de"},
             {"de-u-ca-buddhist", "de@calendar=buddhist"}, {"abcdefgh-12", "abcdefgh_12"}}) {
        PhoneLocale::shared().locale = given;
        EXPECT_EQ(textOf(NS::Locale::currentLocale().localeIdentifier()), expected) << given;
        const NS::Locale made = NS::Locale::make<"initWithLocaleIdentifier:">(stringOf(given));
        EXPECT_EQ(textOf(made.localeIdentifier()), expected) << given;
    }
}

TEST_F(NSLocale, IsMadeOfAnyIdentifier)
{
    for (const std::string& identifier : {std::string(), std::string("-"), std::string("_"), std::string("en-"),
             std::string("en--US"), std::string("-US"), std::string("@calendar"), std::string("e n"),
             std::string("zh-_-"), std::string(5000, 'e'), "en" + std::string(5000, '-')}) {
        const NS::Locale made = NS::Locale::make<"initWithLocaleIdentifier:">(stringOf(identifier));
        EXPECT_NO_THROW(made.localeIdentifier()) << identifier;
        EXPECT_NO_THROW((part(identifier.c_str(), "kCFLocaleLanguageCodeKey"))) << identifier;
    }
}

TEST_F(NSLocale, KeepsItsScript)
{
    const NS::Locale locale = NS::Locale::make<"initWithLocaleIdentifier:">("sr-Latn-RS"_ns);
    EXPECT_EQ(textOf(locale.send<NS::String, "objectForKey:">("kCFLocaleScriptCodeKey"_ns)), "Latn");
    EXPECT_EQ(textOf(locale.send<NS::String, "objectForKey:">("kCFLocaleCountryCodeKey"_ns)), "RS");
}

TEST_F(NSLocale, LanguagesAreThePhones)
{
    PhoneLocale::shared().languages = {"zh-Hans", "de-DE"};
    const auto languages = NS::Locale::sendClass<NS::Array, "preferredLanguages">();
    ASSERT_EQ(languages.count(), 2u);
    EXPECT_EQ(textOf(languages.at<NS::String>(0)), "zh-Hans");
    EXPECT_EQ(textOf(languages.at<NS::String>(1)), "de-DE");
}

TEST_F(NSLocale, PartsHaveThePhonesKeys)
{
    EXPECT_EQ(part("zh-Hans_CN", "kCFLocaleLanguageCodeKey"), "zh");
    EXPECT_EQ(part("zh-Hans_CN", "kCFLocaleScriptCodeKey"), "Hans");
    EXPECT_EQ(part("zh-Hans-CN", "kCFLocaleCountryCodeKey"), "CN");
    EXPECT_EQ(part("pt-BR", "kCFLocaleCountryCodeKey"), "BR");
    EXPECT_EQ(part("de", "kCFLocaleLanguageCodeKey"), "de");
    EXPECT_EQ(part("de", "kCFLocaleCountryCodeKey"), "");
    EXPECT_EQ(part("", "kCFLocaleLanguageCodeKey"), "");
    EXPECT_EQ((NS::Locale::sendClass<NS::Dictionary, "componentsFromLocaleIdentifier:">(NS::String()).count()), 0u);
}

TEST_F(NSLocale, AnswersForThePhonesKeys)
{
    const NS::Locale locale = NS::Locale::make<"initWithLocaleIdentifier:">("de_AT"_ns);
    EXPECT_EQ(textOf(locale.send<NS::String, "objectForKey:">("kCFLocaleLanguageCodeKey"_ns)), "de");
    EXPECT_EQ(textOf(locale.send<NS::String, "objectForKey:">("kCFLocaleCountryCodeKey"_ns)), "AT");
}

TEST_F(NSLocale, TimeZoneIsThePhones)
{
    PhoneLocale::shared().timeZone = "Asia/Jerusalem";
    EXPECT_EQ(zone(), "Asia/Jerusalem");
    const auto local = classNamed("NSTimeZone").send<ObjC::Object, "systemTimeZone">();
    EXPECT_EQ((local.send<long, "secondsFromGMTForDate:">(date(evening))), 7200);
    PhoneLocale::shared().timeZone = "Nowhere/Land";
    EXPECT_TRUE((classNamed("NSTimeZone").send<ObjC::Object, "defaultTimeZone">()));
}

TEST_F(NSLocale, AnUnknownZoneIsNil)
{
    for (const char* name : {"", "Nowhere/Land", "../../etc/passwd"})
        EXPECT_FALSE((classNamed("NSTimeZone").send<ObjC::Object, "timeZoneWithName:">(stringOf(name)))) << name;
}
