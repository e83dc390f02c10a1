// Stand-ins as the runtime sees them: initialisers, properties, arguments.
#include "Tests/Runtime/Probe.hpp"

#include <gtest/gtest.h>

using namespace Simulator;

struct BinderTest : testing::Test {
    BinderTest() { registerProbe(); }
    ObjC::AutoreleasePool pool;
};

TEST_F(BinderTest, AnInitializerRunsTheStandInsFunction)
{
    EXPECT_EQ(Probe::withFrame(CGRectMake(1, 2, 3, 4)).frame(), CGRectMake(1, 2, 3, 4));
}

TEST_F(BinderTest, AnInitializerThatFailsGivesNilAndLeavesNothingBehind)
{
    long before = StandInRegistry::shared().liveCount("LYRProbe");
    EXPECT_FALSE(Probe::make<"initOrFail:">(false));
    EXPECT_EQ(StandInRegistry::shared().liveCount("LYRProbe"), before);
}

TEST_F(BinderTest, APropertyReadsBackAndTellsOfEachChange)
{
    auto probe = Probe::make();
    probe.setFrame(CGRectMake(0, 0, 5, 5));
    probe.setFrame(CGRectMake(0, 0, 6, 6));
    EXPECT_EQ(probe.frame().size.width, 6);
    EXPECT_EQ(standIn<ProbeStandIn>(probe.raw()).changes, 2);
}

TEST_F(BinderTest, SmallIntegersAndFractionsArriveAsTheyWereSent)
{
    auto probe = Probe::make();
    EXPECT_EQ(probe.sum(true, -7, 0.5), -5.5);
    EXPECT_EQ(probe.sum(false, 7, 0.25), 7.25);
}

TEST_F(BinderTest, AClassMethodNeedsNoObject)
{
    EXPECT_EQ(Probe::answer(), 42);
}

TEST_F(BinderTest, AnInstanceVariableIsFoundByItsName)
{
    auto probe = Probe::make();
    standIn<ProbeStandIn>(probe.raw()).setIvar("_label", "stock"_ns);
    probe.variable<int>("_count").set(3);
    EXPECT_EQ(probe.ivar<NS::String>("_label").utf8(), "stock");
    EXPECT_EQ(probe.variable<int>("_count").get(), 3);
    EXPECT_FALSE(probe.ivar<NS::String>("_missing"));
}

TEST_F(BinderTest, KeyValueAccessReachesPropertiesAndInstanceVariables)
{
    auto probe = Probe::make();
    probe.setHidden(true);
    standIn<ProbeStandIn>(probe.raw()).setIvar("_label", "stock"_ns);
    EXPECT_TRUE(probe.valueForKey<NS::Number>("hidden"_ns).boolValue());
    EXPECT_EQ(probe.valueForKey<NS::String>("_label"_ns).utf8(), "stock");
}

TEST_F(BinderTest, AnObjectInAnInstanceVariableGoesWithItsOwner)
{
    long before = StandInRegistry::shared().liveCount("LYRProbe");
    {
        auto outer = Probe::make();
        standIn<ProbeStandIn>(outer.raw()).setIvar("_label", Probe::make());
        EXPECT_EQ(StandInRegistry::shared().liveCount("LYRProbe"), before + 2);
    }
    EXPECT_EQ(StandInRegistry::shared().liveCount("LYRProbe"), before);
}

TEST_F(BinderTest, AClassMadeByTheExtensionFromAStandInHasItsStateToo)
{
    static Class derived = ObjC::ClassBuilder("LYRDerivedProbe", Probe::type()).build();
    auto object = ObjC::Object::adopting(ObjC::sendMessage<id>(
        ObjC::sendMessage<id>(reinterpret_cast<id>(derived), ObjC::selector<"alloc">()), ObjC::selector<"init">()));
    Probe(object.raw()).setText("derived"_ns);
    EXPECT_EQ(Probe(object.raw()).text().utf8(), "derived");
    EXPECT_EQ(standIn<ProbeStandIn>(object.raw()).className(), "LYRDerivedProbe");
}

TEST_F(BinderTest, TheTypeStringsAreTheRuntimesOwn)
{
    auto types = [](const char* name) {
        return std::string(method_getTypeEncoding(class_getInstanceMethod(Probe::type(), sel_registerName(name))));
    };
    EXPECT_EQ(types("setFrame:"), "v@:{CGRect={CGPoint=dd}{CGSize=dd}}");
    EXPECT_EQ(types("isHidden"), "B@:");
    EXPECT_EQ(types("text"), "@@:");
    EXPECT_EQ(types("sumOfFlag:whole:fraction:"), "d@:Bid");
}
