// A catalogue by message: loading, overlaying, looking up.
#include "CatalogueTest.hpp"

#include "Platform/Foundation/NSNumber.hpp"

namespace LYR {
namespace {

class Catalogue : public CatalogueTest {
protected:
    void SetUp() override
    {
        CatalogueTest::SetUp();
        putFile("en", R"({"yes": "Yes", "no": "No"})");
    }
    /// What is handed over where a text or a dictionary belongs.
    static std::vector<ObjC::Object> strangers()
    {
        return {ObjC::Object(), NS::Number::numberWithInt(7), NS::MutableArray::make(), NS::Object::make()};
    }
};

TEST_F(Catalogue, LoadsAFileOverItsTexts)
{
    putFile("it", R"({"yes": "Sì", "maybe": "Forse"})");
    auto catalogue = catalogueFor({"en"});
    catalogue.loadTranslations("it"_ns);
    EXPECT_EQ(textOf(catalogue.getLanguage()), "it");
    EXPECT_EQ(textFor(catalogue, "yes"), "Sì");
    EXPECT_EQ(textFor(catalogue, "no"), "No");
    EXPECT_EQ(textFor(catalogue, "maybe"), "Forse");
}

TEST_F(Catalogue, StaysAsItIsIfTheFileDoesNotExist)
{
    auto catalogue = catalogueFor({"en"});
    catalogue.loadTranslations("it"_ns);
    EXPECT_EQ(textOf(catalogue.getLanguage()), "en");
    EXPECT_EQ(textFor(catalogue, "yes"), "Yes");
    EXPECT_EQ(catalogue.translations().count(), 2u);
}

TEST_F(Catalogue, LoadsNothingForANameThatIsNone)
{
    auto catalogue = catalogueFor({"en"});
    catalogue.loadTranslations(""_ns);
    for (const ObjC::Object& stranger : strangers())
        catalogue.send<void, "loadTranslations:">(stranger);
    EXPECT_EQ(textOf(catalogue.getLanguage()), "en");
    EXPECT_EQ(catalogue.translations().count(), 2u);
}

TEST_F(Catalogue, LaysTextsOverItsOwn)
{
    auto catalogue = catalogueFor({"en"});
    auto texts = NS::MutableDictionary::dictionary();
    texts.setObject("Aye"_ns, "yes"_ns);
    texts.setObject("Perhaps"_ns, "maybe"_ns);
    catalogue.overwriteTranslations(texts);
    EXPECT_EQ(textFor(catalogue, "yes"), "Aye");
    EXPECT_EQ(textFor(catalogue, "no"), "No");
    EXPECT_EQ(textFor(catalogue, "maybe"), "Perhaps");
    EXPECT_EQ(textOf(catalogue.getLanguage()), "en") << "texts alone are no language";
}

TEST_F(Catalogue, PassesOverWhatIsNoTextForAText)
{
    auto catalogue = catalogueFor({"en"});
    auto texts = NS::MutableDictionary::dictionary();
    texts.setObject(NS::Number::numberWithInt(1), "yes"_ns);
    texts.setObject("seven"_ns, NS::Number::numberWithInt(7));
    texts.setObject("Nope"_ns, "no"_ns);
    catalogue.overwriteTranslations(texts);
    EXPECT_EQ(textFor(catalogue, "yes"), "Yes");
    EXPECT_EQ(textFor(catalogue, "no"), "Nope");
    EXPECT_EQ(catalogue.translations().count(), 2u);
}

TEST_F(Catalogue, LaysNothingOverItsTextsThatIsNoDictionary)
{
    auto catalogue = catalogueFor({"en"});
    for (const ObjC::Object& stranger : strangers())
        catalogue.send<void, "overwriteTranslations:">(stranger);
    catalogue.overwriteTranslations(catalogue.translations());
    EXPECT_EQ(textFor(catalogue, "yes"), "Yes");
    EXPECT_EQ(catalogue.translations().count(), 2u);
}

TEST_F(Catalogue, AnswersAnErrorForAKeyThatIsMissingOrNone)
{
    auto catalogue = catalogueFor({"en"});
    EXPECT_EQ(textFor(catalogue, "maybe"), missingText);
    for (const ObjC::Object& stranger : strangers())
        EXPECT_EQ(textOf(catalogue.send<NS::String, "stringForKey:">(stranger)), missingText);
}

TEST_F(Catalogue, TakesAnotherLanguageAndOtherTexts)
{
    auto catalogue = catalogueFor({"en"});
    catalogue.setLanguage("tlh"_ns);
    EXPECT_EQ(textOf(catalogue.getLanguage()), "tlh");
    EXPECT_EQ(textOf(catalogue.send<NS::String, "language">()), "tlh");
    auto texts = NS::MutableDictionary::dictionary();
    texts.setObject("HIja'"_ns, "yes"_ns);
    catalogue.setTranslations(texts);
    EXPECT_EQ(textFor(catalogue, "yes"), "HIja'");
    texts.setObject("ghobe'"_ns, "yes"_ns);
    EXPECT_EQ(textFor(catalogue, "yes"), "HIja'") << "it has a copy: what looks as if it could be changed may not be";
}

TEST_F(Catalogue, CanAddToTextsThatWereGivenUnchangeable)
{
    auto catalogue = catalogueFor({"en"});
    auto fixed = catalogue.translations().copy();
    catalogue.send<void, "setTranslations:">(fixed);
    putFile("it", R"({"yes": "Sì"})");
    catalogue.loadTranslations("it"_ns);
    EXPECT_EQ(textFor(catalogue, "yes"), "Sì");
    EXPECT_EQ(textFor(catalogue, "no"), "No");
}

TEST_F(Catalogue, IsEmptyIfItIsGivenWhatItCannotUse)
{
    for (const ObjC::Object& stranger : strangers()) {
        auto catalogue = catalogueFor({"en"});
        catalogue.send<void, "setLanguage:">(stranger);
        catalogue.send<void, "setTranslations:">(stranger);
        EXPECT_FALSE(catalogue.getLanguage());
        EXPECT_FALSE(catalogue.translations());
        EXPECT_EQ(textFor(catalogue, "yes"), missingText);
        catalogue.loadTranslations("en"_ns);
        EXPECT_EQ(textFor(catalogue, "yes"), missingText);
    }
}

TEST_F(Catalogue, ReleasesWhatItHeldWhenItGoes)
{
    auto texts = NS::MutableDictionary::dictionary();
    auto name = stringOf("a language of no file");
    auto retains
        = [&] { return texts.send<unsigned long, "retainCount">() + name.send<unsigned long, "retainCount">(); };
    texts.setObject(name, "yes"_ns);
    auto before = retains();
    {
        ObjC::AutoreleasePool inner;
        auto catalogue = LYRLocalization::make();
        catalogue.setTranslations(texts);
        catalogue.setTranslations(texts);
        catalogue.setLanguage(name);
        EXPECT_GT(retains(), before);
    }
    EXPECT_EQ(retains(), before);
}

}
}
