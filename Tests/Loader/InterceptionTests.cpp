// Interceptions, of methods that a class has and of those that it inherits.
#include "Platform/Foundation/NSString.hpp"
#include "Platform/ObjC/Hook.hpp"
#include "Simulator/Loader/HookRecord.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ObjC::Object;

NS::String plainGreeting(Object, SEL)
{
    return "hello"_ns;
}
NS::String loudGreeting(Object self, SEL cmd)
{
    return ObjC::stock<loudGreeting>(self, cmd).stringByAppendingString("!"_ns);
}
NS::String derivedGreeting(Object self, SEL cmd)
{
    return ObjC::stock<derivedGreeting>(self, cmd).stringByAppendingString(" derived"_ns);
}
NS::String shoutedGreeting(Object self, SEL cmd)
{
    return ObjC::stock<shoutedGreeting>(self, cmd).stringByAppendingString("!!"_ns);
}
NS::String standingGreeting(Object self, SEL cmd)
{
    return ObjC::stock<standingGreeting>(self, cmd).stringByAppendingString("?"_ns);
}
void unheard(Object self, SEL cmd)
{
    ObjC::stock<unheard>(self, cmd);
}
double halved(Object, SEL, double number)
{
    return number / 2;
}

/// A fresh pair of classes, the second derived from the first and without methods of its own.
struct Classes {
    explicit Classes(const std::string& name)
        : base(ObjC::ClassBuilder(name.c_str(), NS::Object::type()).method<"greeting", plainGreeting>().build())
        , derived(ObjC::ClassBuilder((name + "Derived").c_str(), base).build())
    {
    }
    Class base;
    Class derived;
};

NS::String greetingOf(Class type)
{
    auto object = Object::adopting(ObjC::sendMessage<id>(reinterpret_cast<id>(type), ObjC::selector<"new">()));
    return object.send<NS::String, "greeting">();
}

std::vector<std::string> leftOut;

void keep(const ObjC::HookRow& row)
{
    leftOut.push_back(std::string(row.className) + " " + row.selectorName);
}

void refuse(const ObjC::HookRow& row)
{
    ADD_FAILURE() << row.className << " " << row.selectorName << " was left out";
}

struct Interception : testing::Test {
    void SetUp() override { leftOut.clear(); }

    ObjC::AutoreleasePool pool;
    SEL greeting = sel_registerName("greeting");
};

}

TEST_F(Interception, ReplacesAMethodAndKeepsTheStockOne)
{
    Classes classes("LYRGreeterA");
    auto row = ObjC::hooked<"LYRGreeterA", "greeting", loudGreeting>();
    ObjC::install({&row, 1}, refuse);
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello!");
    EXPECT_EQ(greetingOf(classes.derived).utf8(), "hello!") << "what is inherited is replaced too";
}

TEST_F(Interception, ReachesDerivedClassesThatAreInUseAlready)
{
    Classes classes("LYRGreeterF");
    EXPECT_EQ(greetingOf(classes.derived).utf8(), "hello");
    MSHookMessageEx(classes.base, greeting, ObjC::Adapter<shoutedGreeting>::implementation(),
        &ObjC::stockImplementation<shoutedGreeting>);
    EXPECT_EQ(greetingOf(classes.derived).utf8(), "hello!!");
}

TEST_F(Interception, AClassWithoutAMethodOfItsOwnGetsOneAndCallsTheInheritedOne)
{
    Classes classes("LYRGreeterB");
    MSHookMessageEx(classes.derived, greeting, ObjC::Adapter<derivedGreeting>::implementation(),
        &ObjC::stockImplementation<derivedGreeting>);
    EXPECT_EQ(greetingOf(classes.derived).utf8(), "hello derived");
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello");
}

TEST_F(Interception, ANilClassOrAMissingSelectorChangesNothing)
{
    Classes classes("LYRGreeterC");
    IMP stock = nullptr;
    MSHookMessageEx(nullptr, greeting, ObjC::Adapter<unheard>::implementation(), &stock);
    MSHookMessageEx(classes.base, sel_registerName("noSuchGreeting"), ObjC::Adapter<unheard>::implementation(), &stock);
    EXPECT_EQ(stock, nullptr);
    EXPECT_FALSE(class_getInstanceMethod(classes.base, sel_registerName("noSuchGreeting")));
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello");
}

TEST_F(Interception, AnInterceptionThatWasNeverInstalledHasNoStockMethodToRun)
{
    EXPECT_EQ(ObjC::stock<derivedGreeting>(Object(), greeting).utf8(),
        ObjC::stockImplementation<derivedGreeting> ? "hello" : "");
    unheard(Object(), greeting);
}

TEST_F(Interception, IsRecordedWithClassSelectorAndTypes)
{
    Classes classes("LYRGreeterD");
    auto before = Simulator::hookRecords().size();
    {
        Simulator::HookRecording recording;
        ObjC::HookRow rows[] = {ObjC::hooked<"LYRGreeterD", "greeting", loudGreeting>(),
            ObjC::added<"LYRGreeterD", "half:", halved>(), ObjC::added<"LYRNoSuchGreeter", "half:", halved>(),
            ObjC::hooked<"LYRNoSuchGreeter", "greeting", loudGreeting>()};
        ObjC::install(rows, keep);
    }
    auto& records = Simulator::hookRecords();
    ASSERT_EQ(records.size(), before + 3);
    EXPECT_EQ(records[before].className, "LYRGreeterD");
    EXPECT_EQ(records[before].types, "@@:");
    EXPECT_EQ(records[before + 1].kind, Simulator::HookRecord::Kind::added);
    EXPECT_EQ(records[before + 1].types, "d@:d");
    EXPECT_FALSE(records[before + 2].resolved());
    EXPECT_EQ(records[before + 2].selectorName, "half:");
    EXPECT_EQ(leftOut, std::vector<std::string>{"LYRNoSuchGreeter greeting"});
}

TEST_F(Interception, OfAMethodWithOtherTypesIsLeftOut)
{
    Classes classes("LYRGreeterG");
    ObjC::HookRow rows[] = {ObjC::hooked<"LYRGreeterG", "greeting", loudGreeting>(),
        ObjC::hooked<"LYRGreeterG", "noSuchGreeting", loudGreeting>()};
    rows[0].types = "q@:";
    ObjC::install(rows, keep);
    EXPECT_EQ(leftOut, (std::vector<std::string>{"LYRGreeterG greeting", "LYRGreeterG noSuchGreeting"}));
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello");
}

TEST(MethodTypes, AreTheSameWithoutOffsetsAndQualifiers)
{
    EXPECT_TRUE(ObjC::haveSameTypes("v24@0:8@16", "v@:@"));
    EXPECT_TRUE(ObjC::haveSameTypes("{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8", "{CGRect={CGPoint=dd}{CGSize=dd}}@:"));
    EXPECT_TRUE(ObjC::haveSameTypes("Vv16@0:8", "v@:"));
    EXPECT_FALSE(ObjC::haveSameTypes("v24@0:8@16", "v@:@?"));
    EXPECT_FALSE(ObjC::haveSameTypes("v20@0:8B16", "v@:q"));
    EXPECT_FALSE(ObjC::haveSameTypes("v@:", "v@:@"));
    EXPECT_FALSE(ObjC::haveSameTypes(nullptr, "v@:"));
}

TEST_F(Interception, StandsAsideWhileItIsTold)
{
    Classes classes("LYRGreeterH");
    auto row = ObjC::hooked<"LYRGreeterH", "greeting", standingGreeting>();
    ObjC::install({&row, 1}, refuse);
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello?");
    ObjC::standsAside = true;
    EXPECT_EQ(greetingOf(classes.base).utf8(), "hello");
    ObjC::standsAside = false;
}

TEST_F(Interception, AnAddedMethodAnswers)
{
    Classes classes("LYRGreeterE");
    auto row = ObjC::added<"LYRGreeterE", "half:", halved>();
    ObjC::install({&row, 1}, refuse);
    auto object = Object::adopting(ObjC::sendMessage<id>(reinterpret_cast<id>(classes.base), ObjC::selector<"new">()));
    EXPECT_EQ((object.send<double, "half:">(3.0)), 1.5);
}
