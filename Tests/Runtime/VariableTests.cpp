// Variables that own an object.
#include "Tests/Runtime/Probe.hpp"

#include <gtest/gtest.h>

struct VariableTest : testing::Test {
    VariableTest() { registerProbe(); }
    ObjC::AutoreleasePool pool;

    static long live() { return Simulator::StandInRegistry::shared().liveCount("LYRProbe"); }
};

TEST_F(VariableTest, AVariableOwnsWhatItHoldsAndLetsGoOfWhatItHeld)
{
    static constinit ObjC::Variable<Probe> variable;
    long before = live();
    variable = Probe::make();
    variable = Probe::make();
    EXPECT_EQ(live(), before + 1);
    variable = Probe();
    EXPECT_EQ(live(), before);
    EXPECT_FALSE(variable);
}

TEST_F(VariableTest, AssigningItsOwnValueKeepsItAlive)
{
    static constinit ObjC::Variable<Probe> variable;
    variable = Probe::withFrame(CGRectMake(1, 1, 1, 1));
    variable = variable.get();
    EXPECT_EQ(variable->frame(), CGRectMake(1, 1, 1, 1));
    variable = Probe();
}

TEST_F(VariableTest, AnEmptyVariableTakesMessagesLikeNil)
{
    static constinit ObjC::Variable<Probe> variable;
    variable->setText("unheard"_ns);
    EXPECT_EQ(variable->frame(), CGRect());
}
