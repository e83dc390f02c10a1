// The texts of the settings as the shell gets them: in the user's languages, from the files of the settings bundle.
#include "Tests/EndToEnd/Scenario.hpp"

static const Json catalogueClass = {{"class", "LYRLocalization"}};
static const std::string bundle = "/Library/PreferenceBundles/LYRPrefs.bundle/";

static Phone phoneIn(const std::vector<std::string>& languages)
{
    return eveningPhone().languages(languages).start();
}

/// A phone whose bundle has these files (name to JSON) and no others.
static Phone phoneWith(const std::vector<std::string>& languages, const std::map<std::string, Json>& files)
{
    auto phone = phoneIn(languages);
    for (const char* name : {"en", "fr", "de", "es", "it", "pt", "ru", "he", "ar", "ja", "zh-hans", "zh-hant"})
        phone.call("file.remove", {{"path", bundle + name + ".json"}});
    for (const auto& [name, json] : files)
        phone.writeFile(bundle + name + ".json", json.dump());
    return phone;
}

static Json text(Phone& phone, const std::string& key)
{
    return phone.send(catalogueClass, "stringForKey:", {key});
}

static Json language(Phone& phone)
{
    phone.call("objc.new", {{"class", "LYRLocalization"}, {"name", "catalogue"}});
    return phone.send({{"named", "catalogue"}}, "getLanguage");
}

TEST(Translations, SpeakEveryLanguageOfTheBundle)
{
    const std::map<std::string, std::pair<std::string, std::string>> wanted = {{"en-US", {"en", "Battery"}},
        {"fr-CA", {"fr", "Batterie"}}, {"de-AT", {"de", "Batterie"}}, {"es-MX", {"es", "Batería"}},
        {"it-IT", {"it", "Batteria"}}, {"pt-PT", {"pt", "Bateria"}}, {"ru-RU", {"ru", "Аккумулятор"}},
        {"he-IL", {"he", "סוללה"}}, {"ar-EG", {"ar", "البطارية"}}, {"ja-JP", {"ja", "バッテリー"}},
        {"zh-Hans-CN", {"zh-hans", "电池"}}, {"zh-Hant-TW", {"zh-hant", "電池"}}, {"sv-SE", {"en", "Battery"}}};
    for (const auto& [identifier, expected] : wanted) {
        auto phone = phoneIn({identifier});
        EXPECT_EQ(language(phone), expected.first) << identifier;
        EXPECT_EQ(text(phone, "battery"), expected.second) << identifier;
    }
}

TEST(Translations, TakeOnlyTheMostPreferredLanguage)
{
    auto phone = phoneIn({"de-DE", "fr-FR"});
    EXPECT_EQ(text(phone, "sunrise"), "Sonnenaufgang");
}

TEST(Translations, FallBackToEnglishKeyByKey)
{
    auto phone = phoneWith({"fr"}, {{"en", {{"yes", "Yes"}, {"no", "No"}}}, {"fr", {{"yes", "Oui"}}}});
    EXPECT_EQ(language(phone), "fr");
    EXPECT_EQ(text(phone, "yes"), "Oui");
    EXPECT_EQ(text(phone, "no"), "No");
    EXPECT_EQ(text(phone, "maybe"), "Transl. Err");
}

TEST(Translations, LayTheScriptOverTheLanguage)
{
    auto phone = phoneWith({"zh-Hans-CN"},
        {{"en", {{"a", "en"}, {"b", "en"}, {"c", "en"}}}, {"zh", {{"b", "zh"}, {"c", "zh"}}},
            {"zh-hans", {{"c", "hans"}}}});
    EXPECT_EQ(text(phone, "a"), "en");
    EXPECT_EQ(text(phone, "b"), "zh");
    EXPECT_EQ(text(phone, "c"), "hans");
    EXPECT_EQ(language(phone), "zh-hans");
}

TEST(Translations, AreEnglishAloneForAnyKindOfEnglish)
{
    for (const char* identifier : {"en-GB", "en-Latn-US"}) {
        auto phone = phoneWith({identifier},
            {{"en", {{"colour", "en"}}}, {"en-gb", {{"colour", "gb"}}}, {"en-latn", {{"colour", "latn"}}}});
        EXPECT_EQ(text(phone, "colour"), "en") << identifier;
        EXPECT_EQ(language(phone), "en") << identifier;
    }
}

TEST(Translations, AreErrorsWhereNoFileFits)
{
    auto phone = phoneWith({"sv-SE"}, {{"fr", {{"yes", "Oui"}}}});
    EXPECT_EQ(text(phone, "yes"), "Transl. Err");
    EXPECT_EQ(language(phone), nullptr);
}

TEST(Translations, PutANumberInPlaceOfTheStar)
{
    const std::map<std::string, Json> files
        = {{"en", {{"wait", "* min"}, {"plain", "Version 2"}}}, {"ar", Json::object()}};
    auto english = phoneWith({"en"}, files);
    EXPECT_EQ(english.send(catalogueClass, "stringForKey:withInt:", {"wait", 15}), "15 min");
    EXPECT_EQ(english.send(catalogueClass, "stringForKey:withLong:", {"wait", 5000000000}), "5000000000 min");
    EXPECT_EQ(english.send(catalogueClass, "stringForKey:withInt:", {"plain", 15}), "Version 2");
    auto arabic = phoneWith({"ar"}, files);
    EXPECT_EQ(arabic.send(catalogueClass, "stringForKey:withInt:", {"wait", 15}), "١٥ min");
    EXPECT_EQ(arabic.send(catalogueClass, "stringForKey:withInt:", {"plain", 15}), "Version ٢");
}

TEST(Translations, SurviveFilesThatHoldNoTexts)
{
    for (const char* damaged :
        {"", "{", "[1, 2]", "\"text\"", "null", "{\"yes\": 7, \"no\": null, \"all\": {}}", "\xFF\xFE"}) {
        auto phone = phoneWith({"fr"}, {{"en", {{"yes", "Yes"}}}});
        phone.writeFile(bundle + "fr.json", damaged);
        EXPECT_EQ(text(phone, "yes"), "Yes") << damaged;
        EXPECT_EQ(text(phone, "no"), "Transl. Err") << damaged;
        EXPECT_EQ(language(phone), "fr") << damaged;
        EXPECT_EQ(phone.info().at("safeMode"), false) << damaged;
    }
}

TEST(Translations, AreReadOnceForTheWholeShell)
{
    auto phone = phoneWith({"en"}, {{"en", {{"yes", "Yes"}}}});
    auto first = phone.send(catalogueClass, "sharedInstance");
    EXPECT_EQ(first.at("class"), "LYRLocalization");
    phone.writeFile(bundle + "en.json", R"({"yes": "Aye"})");
    EXPECT_EQ(text(phone, "yes"), "Yes");
    EXPECT_EQ(phone.send(catalogueClass, "sharedInstance"), first);
}
