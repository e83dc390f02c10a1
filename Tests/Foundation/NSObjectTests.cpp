// Key-value access, delayed messages, the log and JSON.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSLog.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/Foundation/SystemLog.hpp"
#include "Simulator/Runtime/Binder.hpp"

using namespace Simulator;

namespace {

struct MessageTarget : StandIn {
    using Root = MessageTarget;
    void note(const NS::String& text) { notes += textOf(text); }
    std::string notes;
};

class NSObject : public FoundationTest {
protected:
    void SetUp() override
    {
        FoundationTest::SetUp();
        if (!objc_getClass("MessageTarget"))
            Binder<MessageTarget>("MessageTarget", "NSObject")
                .def<"note:", &MessageTarget::note>()
                .ivar<"_kept">()
                .add();
        target = NS::Object(ObjC::Object::adopting(classNamed("MessageTarget").send<id, "new">()));
    }
    std::string& notes() { return standIn<MessageTarget>(target.raw()).notes; }
    void later(const NS::String& text, double delay)
    {
        target.send<void, "performSelector:withObject:afterDelay:">(sel_registerName("note:"), text, delay);
    }
    NS::Object target;
};

ObjC::Object json(const std::string& text, unsigned long options = 0)
{
    return classNamed("NSJSONSerialization")
        .send<ObjC::Object, "JSONObjectWithData:options:error:">(
            NS::Data::dataWithBytes(text.data(), text.size()), options, static_cast<id*>(nullptr));
}

}

// The form that answers nil instead belongs to the framework for accessibility, which the shell has not loaded.
TEST_F(NSObject, RaisesForAnUnknownKeyAndHasNoSafeForm)
{
    EXPECT_FALSE(target.respondsTo<"safeValueForKey:">());
    EXPECT_ANY_THROW(target.valueForKey<ObjC::Object>("nope"_ns));
}

TEST_F(NSObject, ReachesInstanceVariablesByKey)
{
    standIn<MessageTarget>(target.raw()).setIvar("_kept", "value"_ns);
    EXPECT_EQ(textOf(target.valueForKey<NS::String>("kept"_ns)), "value");
}

TEST_F(NSObject, GetsDelayedMessagesOnThePhonesLoop)
{
    later("a"_ns, 1);
    later("b"_ns, 0.5);
    later("c"_ns, 2);
    classNamed("NSObject")
        .send<void, "cancelPreviousPerformRequestsWithTarget:selector:object:">(
            target, sel_registerName("note:"), "c"_ns);
    Loop::shared().advance(5);
    EXPECT_EQ(notes(), "ba");
    later("d"_ns, 1);
    classNamed("NSObject").send<void, "cancelPreviousPerformRequestsWithTarget:">(target);
    EXPECT_EQ(Loop::shared().pending(), 0u);
    target.send<void, "performSelectorOnMainThread:withObject:waitUntilDone:">(sel_registerName("note:"), "w"_ns, true);
    target.send<void, "performSelectorOnMainThread:withObject:waitUntilDone:">(
        sel_registerName("note:"), "q"_ns, false);
    EXPECT_EQ(notes(), "baw");
    Loop::shared().advance(0);
    EXPECT_EQ(notes(), "bawq");
}

TEST_F(NSObject, LogsToTheRecord)
{
    testing::internal::CaptureStderr();
    NS::log("said"_ns);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(records("nslog").size(), 1u);
}

TEST_F(NSObject, LogsToStandardErrorTooWhereThatIsWanted)
{
    SystemLog::shared().isOnStandardError = true;
    Loop::shared().advance(3);
    testing::internal::CaptureStderr();
    NS::log("50% done, %@ é"_ns);
    NSLog("%@ has %d"_ns.raw(), "it"_ns.raw(), 7);
    NSLog(nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "phone: 50% done, %@ é\nphone: it has 7\n");
    SystemLog::shared().isOnStandardError = false;
    const auto logged = records("nslog");
    ASSERT_EQ(logged.size(), 2u);
    EXPECT_EQ(logged[0]["text"], "50% done, %@ é");
    EXPECT_EQ(logged[1]["at"], 3.0);
}

TEST_F(NSObject, JsonIsReadAsStrictlyAsOnThePhone)
{
    const auto object = NS::Object(json("{\"a\": [true, null, 1.5, \"]\\\"{\"]}")).as<NS::Dictionary>();
    ASSERT_TRUE(object);
    EXPECT_EQ(object.objectForKey<NS::Array>("a"_ns).count(), 4u);
    for (const char* text :
        {"", " ", "{", "[1,", "nul", "{\"a\":}", "[1]]", "[1] x", "{'a':1}", "[1}", "\"open", "[\"\\", "\"x\"", "12"})
        EXPECT_FALSE(json(text)) << text;
    EXPECT_FALSE(json(std::string(300000, '[')));
    EXPECT_EQ(textOf(NS::Object(json("\"x\"", 4)).as<NS::String>()), "x");
    EXPECT_TRUE(json(std::string(500, '[') + std::string(500, ']')));
}
