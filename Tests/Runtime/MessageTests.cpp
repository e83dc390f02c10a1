// Messages through the facades: to nil, to missing classes, with values that are owned.
#include "Platform/Foundation/NSArray.hpp"
#include "Tests/Runtime/Probe.hpp"

#include <gtest/gtest.h>

struct MessageTest : testing::Test {
    MessageTest() { registerProbe(); }
    ObjC::AutoreleasePool pool;
};

TEST_F(MessageTest, AMessageToNilGivesTheZeroOfAnyType)
{
    Probe nothing;
    EXPECT_EQ(nothing.frame(), CGRect());
    EXPECT_EQ(nothing.sum(true, 1, 1), 0);
    EXPECT_FALSE(nothing.isHidden());
    EXPECT_FALSE(nothing.text());
    nothing.setText("unheard"_ns);
}

TEST_F(MessageTest, AClassThatThisSystemLacksIsNil)
{
    class Missing : public ObjC::Class_<Missing, NS::Object, "LYRNoSuchClass"> {
    public:
        using Class_::Class_;
    };
    EXPECT_EQ(Missing::type(), nullptr);
    EXPECT_FALSE(Missing::make());
    EXPECT_EQ((Missing::sendClass<double, "anything">()), 0);
}

TEST_F(MessageTest, TextKeepsEveryCharacterOnItsWayThereAndBack)
{
    EXPECT_EQ(NS::String::fromUTF8("Grüße • 你好 \U0001F600").utf8(), "Grüße • 你好 \U0001F600");
    EXPECT_FALSE(NS::String::fromUTF8("\xff\xfe"));
}

TEST_F(MessageTest, AValueOfAnotherClassIsNotTakenForATypedOne)
{
    auto list = NS::MutableArray::make();
    list.addObject("text"_ns);
    list.addObject(NS::Number::numberWithInt(7));
    EXPECT_EQ(list.at<NS::String>(0).utf8(), "text");
    EXPECT_FALSE(list.at<NS::String>(1));
    EXPECT_EQ(list.at<NS::Number>(1).intValue(), 7);
    EXPECT_FALSE(list.at<NS::Number>(2)) << "beyond the end";
}

TEST_F(MessageTest, ResultsOfOwningMethodsAreNotRetainedTwice)
{
    auto list = NS::MutableArray::make();
    list.addObject(Probe::make());
    auto count = [](const ObjC::Object& object) { return object.send<unsigned long, "retainCount">(); };
    EXPECT_EQ(count(Probe::make()), 1u);
    EXPECT_EQ(count(list.mutableCopy()), 1u);
}

TEST_F(MessageTest, SelectorNamesTellArgumentsAndOwnership)
{
    static_assert(ObjC::argumentCount("setText:") == 1);
    static_assert(ObjC::argumentCount("transition:to:animated:") == 3);
    static_assert(ObjC::returnsOwned("newThing") && !ObjC::returnsOwned("newspaper"));
    static_assert(ObjC::returnsOwned("mutableCopy") && !ObjC::returnsOwned("copyright"));
    static_assert(ObjC::isInitializer("initWithFrame:") && !ObjC::isInitializer("initialize"));
    static_assert(ObjC::isInitializer("_init"));
}
