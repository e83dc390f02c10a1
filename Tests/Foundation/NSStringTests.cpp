// Strings and numbers as on the phone.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSNumber.hpp"

#include <limits>

using namespace Simulator;

class NSString : public FoundationTest { };

TEST_F(NSString, ChangesCaseByTheFullMapping)
{
    EXPECT_EQ(textOf("straße"_ns.uppercaseString()), "STRASSE");
    EXPECT_EQ(textOf("ΟΔΟΣ"_ns.lowercaseString()), "οδος");
    EXPECT_EQ(textOf("SUN,NOV 15"_ns.capitalizedString()), "Sun,Nov 15");
    EXPECT_EQ(textOf("plain"_ns.uppercaseString()), "PLAIN");
    const auto changeable = "Sun"_ns.send<NS::String, "mutableCopy">();
    EXPECT_EQ(textOf(changeable.uppercaseString()), "SUN");
    EXPECT_EQ(textOf(changeable.lowercaseString()), "sun");
}

TEST_F(NSString, ChangesCaseByALocaleIfAsked)
{
    EXPECT_EQ(textOf("title"_ns.uppercaseString()), "TITLE");
    PhoneLocale::shared().locale = "tr_TR";
    EXPECT_EQ(textOf("title"_ns.uppercaseString()), "TITLE");
    EXPECT_EQ(textOf("title"_ns.send<NS::String, "localizedUppercaseString">()), "TİTLE");
}

TEST_F(NSString, IsSortedInTheUsersAlphabet)
{
    const auto sorted = [] {
        const NS::MutableArray names = NS::MutableArray::make();
        for (const char* name : {"zapf", "Äther", "avenir", "Baskerville"})
            names.addObject(stringOf(name));
        names.sortUsingSelector<"localizedCaseInsensitiveCompare:">();
        std::string order;
        for (unsigned long index = 0; index < names.count(); ++index)
            order += textOf(names.at<NS::String>(index)) + " ";
        return order;
    };
    EXPECT_EQ(sorted(), "Äther avenir Baskerville zapf ");
    PhoneLocale::shared().locale = "sv_SE";
    EXPECT_EQ(sorted(), "avenir Baskerville zapf Äther ");
    EXPECT_EQ(("a"_ns.send<long, "localizedCaseInsensitiveCompare:">(NS::String())), 1);
}

TEST_F(NSString, HoldsNumbersThatAreTooLargeAtTheLargest)
{
    EXPECT_EQ("99999999999999"_ns.intValue(), std::numeric_limits<int>::max());
    EXPECT_EQ("-99999999999999"_ns.intValue(), std::numeric_limits<int>::min());
    EXPECT_EQ("  42x"_ns.intValue(), 42);
    EXPECT_EQ("no number"_ns.intValue(), 0);
}

TEST_F(NSString, ContainsNoEmptyText)
{
    EXPECT_FALSE("abc"_ns.containsString(""_ns));
    EXPECT_TRUE("abc"_ns.containsString("bc"_ns));
    EXPECT_FALSE("abc"_ns.containsString("d"_ns));
}

TEST_F(NSString, ComesFromAnyText)
{
    EXPECT_EQ(textOf(stringOf(std::u16string_view(u"a\xD800z"))), "a\uFFFDz");
    EXPECT_EQ(textOf(stringOf("\xFF")), "\uFFFD");
    EXPECT_EQ(textOf(stringOf("")), "");
    EXPECT_EQ(textOf(nullptr), "");
}

TEST_F(NSString, ATruthValueIsASignedCharacter)
{
    EXPECT_STREQ((NS::Number::numberWithBool(true).send<const char*, "objCType">()), "c");
    EXPECT_STREQ((NS::Number::numberWithInt(1).send<const char*, "objCType">()), "i");
    EXPECT_TRUE((NS::Number::numberWithBool(true).send<bool, "isEqual:">(NS::Number::numberWithInt(1))));
    EXPECT_EQ(textOf(NS::Number::numberWithBool(true).send<NS::String, "stringValue">()), "1");
}
