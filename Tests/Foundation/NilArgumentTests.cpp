// What the phone's Foundation raises for, GNUstep's does here too.
#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSJSONSerialization.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Tests/Foundation/FoundationTest.hpp"

namespace Simulator {

using NilArguments = FoundationTest;

TEST_F(NilArguments, RaiseInCollections)
{
    EXPECT_ANY_THROW(NS::MutableArray::make().addObject({}));
    const auto table = NS::MutableDictionary::dictionary();
    EXPECT_ANY_THROW(table.setObject({}, "key"_ns));
    EXPECT_ANY_THROW(table.setObject("value"_ns, {}));
    EXPECT_ANY_THROW((table.send<void, "removeObjectForKey:">(NS::String())));
}

TEST_F(NilArguments, RaiseInTexts)
{
    EXPECT_ANY_THROW("a"_ns.stringByAppendingString({}));
    EXPECT_ANY_THROW(NS::AttributedString::withString({}));
    EXPECT_ANY_THROW(NS::MutableAttributedString::withString("a"_ns).appendAttributedString({}));
}

TEST_F(NilArguments, RaiseInPathsAndAddresses)
{
    EXPECT_ANY_THROW(NS::URL::fileURLWithPath({}));
    EXPECT_ANY_THROW(NS::URL::URLWithString({}));
}

TEST_F(NilArguments, RaiseInSerialisedData)
{
    EXPECT_ANY_THROW(NS::JSONSerialization::JSONObjectWithData({}));
}

TEST_F(NilArguments, AnIndexBeyondTheEndRaises)
{
    EXPECT_ANY_THROW((NS::MutableArray::make().send<ObjC::Object, "objectAtIndex:">(0UL)));
}

TEST_F(NilArguments, ADictionaryThatCannotBeChangedPassesForOneThatCanAndRaises)
{
    const auto table = NS::MutableDictionary::dictionary();
    table.setObject("value"_ns, "key"_ns);
    const auto fixed = table.copy();
    EXPECT_TRUE(fixed.is<NS::MutableDictionary>());
    EXPECT_ANY_THROW((fixed.send<void, "setObject:forKey:">("other"_ns, "key"_ns)));
    EXPECT_EQ(fixed.objectForKey<NS::String>("key"_ns).utf8(), "value");
}

}
