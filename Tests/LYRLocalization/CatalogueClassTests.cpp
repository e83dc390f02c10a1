// The class itself: the shared catalogue, and texts with a number in them.
#include "CatalogueTest.hpp"

#include <limits>

namespace LYR {
namespace {

class CatalogueClass : public CatalogueTest {
protected:
    static std::string counted(const char* key, int number)
    {
        return textOf(LYRLocalization::stringForKeyWithInt(stringOf(key), number));
    }
    static std::string countedLong(const char* key, long number)
    {
        return textOf(LYRLocalization::stringForKeyWithLong(stringOf(key), number));
    }
    static std::string plain(const ObjC::Object& key)
    {
        return textOf(LYRLocalization::sendClass<NS::String, "stringForKey:">(key));
    }
};

TEST_F(CatalogueClass, KeepsOneCatalogueForAll)
{
    auto shared = LYRLocalization::sharedInstance();
    ASSERT_TRUE(shared.is<LYRLocalization>());
    EXPECT_EQ(LYRLocalization::sharedInstance(), shared);
    EXPECT_FALSE(LYRLocalization::make() == shared);
}

TEST_F(CatalogueClass, LooksUpInTheSharedCatalogue)
{
    sharing("en", {{"yes", "Yes"}});
    EXPECT_EQ(plain("yes"_ns), "Yes");
    EXPECT_EQ(plain("no"_ns), missingText);
    EXPECT_EQ(plain(ObjC::Object()), missingText);
    EXPECT_EQ(plain(NS::Object::make()), missingText);
}

TEST_F(CatalogueClass, PutsTheNumberInPlaceOfEachStar)
{
    sharing("en", {{"wait", "* min"}, {"range", "*–* (*)"}, {"star", "*"}});
    EXPECT_EQ(counted("wait", 15), "15 min");
    EXPECT_EQ(counted("range", -3), "-3–-3 (-3)");
    EXPECT_EQ(counted("star", 0), "0");
    EXPECT_EQ(counted("missing", 1), missingText);
}

TEST_F(CatalogueClass, PutsNumbersOfAnySizeIntoTexts)
{
    sharing("en", {{"star", "*"}});
    EXPECT_EQ(counted("star", std::numeric_limits<int>::max()), "2147483647");
    EXPECT_EQ(counted("star", std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(countedLong("star", std::numeric_limits<long>::max()), "9223372036854775807");
    EXPECT_EQ(countedLong("star", std::numeric_limits<long>::min()), "-9223372036854775808");
}

TEST_F(CatalogueClass, LeavesATextWithoutAStarAsItIs)
{
    sharing("en", {{"version", "Version 2"}});
    EXPECT_EQ(counted("version", 15), "Version 2");
    EXPECT_EQ(countedLong("version", 15), "Version 2");
}

TEST_F(CatalogueClass, WritesEveryDigitOfAnArabicTextInArabicDigits)
{
    sharing("ar", {{"wait", "* min"}, {"version", "Version 2"}, {"all", "0123456789"}});
    EXPECT_EQ(counted("wait", 15), "١٥ min");
    EXPECT_EQ(countedLong("wait", 9876543210), "٩٨٧٦٥٤٣٢١٠ min");
    EXPECT_EQ(counted("version", 15), "Version ٢");
    EXPECT_EQ(counted("all", 1), "٠١٢٣٤٥٦٧٨٩");
    EXPECT_EQ(plain("version"_ns), "Version 2") << "only a text with a number is rewritten";
}

TEST_F(CatalogueClass, WritesArabicDigitsInNoOtherLanguage)
{
    for (const char* language : {"en", "fa", "ar-arab", "he"}) {
        sharing(language, {{"wait", "* min"}});
        EXPECT_EQ(counted("wait", 15), "15 min") << language;
    }
}

TEST_F(CatalogueClass, CanBeRegisteredAgain)
{
    auto shared = sharing("en", {{"yes", "Yes"}});
    Class before = LYRLocalization::type();
    registerLYRLocalization();
    EXPECT_EQ(objc_getClass("LYRLocalization"), before);
    EXPECT_EQ(LYRLocalization::sharedInstance(), shared);
    EXPECT_EQ(plain("yes"_ns), "Yes");
}

}
}
