// Which files a catalogue is made of, and what it makes of damaged ones.
#include "CatalogueTest.hpp"

#include <cerrno>

namespace LYR {
namespace {

class CatalogueLayers : public CatalogueTest { };

TEST_F(CatalogueLayers, AreTheLanguageOverEnglish)
{
    putFile("en", R"({"yes": "Yes", "no": "No"})");
    putFile("fr", R"({"yes": "Oui"})");
    auto catalogue = catalogueFor({"fr"});
    EXPECT_EQ(textOf(catalogue.getLanguage()), "fr");
    EXPECT_EQ(textFor(catalogue, "yes"), "Oui");
    EXPECT_EQ(textFor(catalogue, "no"), "No");
}

TEST_F(CatalogueLayers, EndWithTheScript)
{
    putFile("en", R"({"a": "en", "b": "en", "c": "en"})");
    putFile("zh", R"({"b": "zh", "c": "zh"})");
    putFile("zh-hans", R"({"c": "hans"})");
    putFile("zh-hant", R"({"c": "hant"})");
    auto catalogue = catalogueFor({"zh-Hans-CN"});
    EXPECT_EQ(textOf(catalogue.getLanguage()), "zh-hans");
    EXPECT_EQ(textFor(catalogue, "a"), "en");
    EXPECT_EQ(textFor(catalogue, "b"), "zh");
    EXPECT_EQ(textFor(catalogue, "c"), "hans");
}

TEST_F(CatalogueLayers, MayLackTheLanguageAndHaveTheScript)
{
    putFile("en", R"({"a": "en"})");
    putFile("zh-hant", R"({"a": "hant"})");
    auto catalogue = catalogueFor({"zh-Hant-TW"});
    EXPECT_EQ(textOf(catalogue.getLanguage()), "zh-hant");
    EXPECT_EQ(textFor(catalogue, "a"), "hant");
}

TEST_F(CatalogueLayers, OfALanguageWithoutScriptHaveNoVariant)
{
    putFile("en", R"({"a": "en"})");
    putFile("de", R"({"a": "de"})");
    putFile("de-(null)", R"({"a": "null"})");
    putFile("de-at", R"({"a": "at"})");
    auto catalogue = catalogueFor({"de-AT"});
    EXPECT_EQ(textOf(catalogue.getLanguage()), "de");
    EXPECT_EQ(textFor(catalogue, "a"), "de");
}

TEST_F(CatalogueLayers, OfAnyKindOfEnglishAreEnglishAlone)
{
    putFile("en", R"({"colour": "en"})");
    putFile("en-gb", R"({"colour": "gb"})");
    putFile("en-latn", R"({"colour": "latn"})");
    for (const char* identifier : {"en", "en-GB", "en-Latn-US"}) {
        auto catalogue = catalogueFor({identifier});
        EXPECT_EQ(textOf(catalogue.getLanguage()), "en") << identifier;
        EXPECT_EQ(textFor(catalogue, "colour"), "en") << identifier;
    }
}

TEST_F(CatalogueLayers, ComeFromTheFirstLanguageAlone)
{
    putFile("en", R"({"a": "en"})");
    putFile("fr", R"({"a": "fr"})");
    EXPECT_EQ(textFor(catalogueFor({"sv-SE", "fr-FR"}), "a"), "en");
}

TEST_F(CatalogueLayers, AreEnglishWhereNoLanguageIsPreferred)
{
    putFile("en", R"({"a": "en"})");
    for (const auto& languages : {std::vector<std::string>{}, std::vector<std::string>{""}}) {
        auto catalogue = catalogueFor(languages);
        EXPECT_EQ(textOf(catalogue.getLanguage()), "en");
        EXPECT_EQ(textFor(catalogue, "a"), "en");
    }
}

TEST_F(CatalogueLayers, AreNoneWithoutEnglishForALanguageThatHasNoFile)
{
    putFile("fr", R"({"a": "fr"})");
    auto catalogue = catalogueFor({"sv-SE"});
    EXPECT_FALSE(catalogue.getLanguage());
    EXPECT_EQ(catalogue.translations().count(), 0u);
    EXPECT_EQ(textFor(catalogue, "a"), missingText);
}

TEST_F(CatalogueLayers, AreNoneWithoutTheBundle)
{
    files.remove(bundle);
    auto catalogue = catalogueFor({"fr"});
    EXPECT_FALSE(catalogue.getLanguage());
    EXPECT_EQ(textFor(catalogue, "a"), missingText);
}

TEST_F(CatalogueLayers, LeaveOutAFileThatCannotBeRead)
{
    putFile("en", R"({"a": "en"})");
    putFile("fr", R"({"a": "fr"})");
    files.setFault(bundle + "fr.json", Simulator::FileOperation::read, EACCES);
    auto catalogue = catalogueFor({"fr"});
    EXPECT_EQ(textOf(catalogue.getLanguage()), "en");
    EXPECT_EQ(textFor(catalogue, "a"), "en");
}

TEST_F(CatalogueLayers, TakeTheNameOfADamagedFileAndNothingFromIt)
{
    putFile("en", R"({"a": "en", "7": "seven"})");
    for (const char* damaged : {"", " ", "{", "[]", "[{\"a\": \"fr\"}]", "\"a\"", "7", "null", "{\"a\": \"fr\"",
             "\xFF\xFE\x01", "plain text"}) {
        putFile("fr", damaged);
        auto catalogue = catalogueFor({"fr"});
        EXPECT_EQ(textOf(catalogue.getLanguage()), "fr") << damaged;
        EXPECT_EQ(textFor(catalogue, "a"), "en") << damaged;
        EXPECT_EQ(catalogue.translations().count(), 2u) << damaged;
    }
}

TEST_F(CatalogueLayers, PassOverValuesThatAreNoText)
{
    putFile("en", R"({"number": "en", "list": "en", "table": "en", "nothing": "en", "text": "en"})");
    putFile("fr", R"({"number": 7, "list": ["fr"], "table": {"text": "fr"}, "nothing": null, "text": "fr"})");
    auto catalogue = catalogueFor({"fr"});
    for (const char* key : {"number", "list", "table", "nothing"})
        EXPECT_EQ(textFor(catalogue, key), "en") << key;
    EXPECT_EQ(textFor(catalogue, "text"), "fr");
}

TEST_F(CatalogueLayers, MayBeEmptyTexts)
{
    putFile("en", R"({"a": "en", "": "nameless"})");
    putFile("fr", R"({"a": ""})");
    auto catalogue = catalogueFor({"fr"});
    EXPECT_EQ(textFor(catalogue, "a"), "");
    EXPECT_EQ(textFor(catalogue, ""), "nameless");
}

}
}
