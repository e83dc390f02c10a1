// Locales and languages with hyphens, as language pickers write them, and with underscores, as formats are named.
#include "Tests/EndToEnd/Scenario.hpp"

namespace {

constexpr int badParameters = -32602;

Support::PhoneStart phoneOf(const std::string& locale)
{
    return eveningPhone({{"dateFormat", "EEEE d MMMM"}, {"dateOption", "0"}}).locale(locale);
}

std::string dateIn(const std::string& locale)
{
    auto phone = settled(phoneOf(locale));
    EXPECT_EQ(phone.info().at("safeMode"), false);
    return phone.label("_dateLabel").text;
}

}

TEST(Locales, MeanTheSameWithHyphensAndUnderscores)
{
    for (const auto& [hyphens, underscores] : {std::pair{"en-US", "en_US"}, {"de-AT", "de_AT"},
             {"zh-Hans-CN", "zh_Hans_CN"}, {"sr-Latn-RS", "sr_Latn_RS"}, {"he-IL", "he_IL"}})
        EXPECT_EQ(dateIn(hyphens), dateIn(underscores)) << hyphens;
    EXPECT_EQ(dateIn("en-US"), "Sunday 15 November");
    EXPECT_EQ(dateIn("de"), "Sonntag 15 November");
}

TEST(Locales, KeepTheirScript)
{
    EXPECT_EQ(dateIn("sr-Latn-RS"), "nedelja 15 novembar");
    EXPECT_EQ(dateIn("sr-Latn_RS"), "nedelja 15 novembar");
    EXPECT_EQ(dateIn("sr-Cyrl-RS"), "недеља 15 новембар");
}

TEST(Locales, ChangeOnAPhoneThatRuns)
{
    auto phone = settled(phoneOf("en_US"));
    phone.call("device.set", {{"locale", "sr-Latn-RS"}});
    phone.call("phone.lock");
    phone.call("phone.wake");
    phone.settle();
    refresh(phone);
    EXPECT_EQ(phone.label("_dateLabel").text, "nedelja 15 novembar");
    EXPECT_EQ(phone.info().at("safeMode"), false);
}

TEST(Locales, AreTakenInSafeModeToo)
{
    auto phone = settled(phoneOf("zh-Hans-CN").withoutExtension());
    EXPECT_EQ(phone.info().at("running"), true);
    EXPECT_EQ(phone.info().at("safeMode"), false);
}

TEST(Locales, ThatAreNoneAreRefused)
{
    auto phone = settled(phoneOf("en_US"));
    for (const std::string& name : {std::string(), std::string("-"), std::string("en-"), std::string("en--US"),
             std::string("-US"), std::string("en@"), std::string(200, 'e'), std::string("e\nn")}) {
        EXPECT_EQ(phone.errorCode("device.set", {{"locale", name}}), badParameters) << name;
        EXPECT_EQ(phone.errorCode("device.set", {{"languages", {name}}}), badParameters) << name;
    }
    EXPECT_EQ(phone.label("_dateLabel").text, "Sunday 15 November");
}

TEST(Locales, OfLanguagesMayHaveUnderscores)
{
    for (const char* language : {"zh-Hans-CN", "zh_Hans_CN"}) {
        auto phone = eveningPhone().languages({language}).start();
        EXPECT_EQ(phone.send({{"class", "LYRLocalization"}}, "stringForKey:", {"battery"}), "电池") << language;
    }
}
