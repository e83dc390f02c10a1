// UIStepper.
#include "TouchTest.hpp"

#include "Platform/UIKit/UIStepper.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

class Stepper : public TouchTest {
protected:
    Stepper()
    {
        stepper = UI::Stepper::make<"initWithFrame:">(CGRectMake(100, 100, 0, 0));
        stepper.setMinimumValue(1);
        stepper.setMaximumValue(150);
        stepper.setValue(90);
        add(stepper);
        listen(stepper);
    }
    void tapPlus() const { tap(170, 116); }
    void tapMinus() const { tap(120, 116); }

    UI::Stepper stepper;
};

TEST_F(Stepper, HasOneSize)
{
    EXPECT_EQ(stepper.frame(), CGRectMake(100, 100, 94, 32));
    stepper.setFrame(CGRectMake(5, 6, 300, 300));
    EXPECT_EQ(stepper.frame(), CGRectMake(5, 6, 94, 32));
}

TEST_F(Stepper, StepsUpAndDownByTaps)
{
    tapPlus();
    EXPECT_EQ(stepper.value(), 91);
    tapMinus();
    tapMinus();
    EXPECT_EQ(stepper.value(), 89);
    EXPECT_EQ(takeCalls().size(), 3u);
    stepper.setStepValue(0.5);
    tapPlus();
    EXPECT_EQ(stepper.value(), 89.5);
}

TEST_F(Stepper, GoesNoFurtherThanItsEnds)
{
    stepper.setValue(150);
    tapPlus();
    EXPECT_EQ(stepper.value(), 150);
    stepper.setValue(1);
    tapMinus();
    EXPECT_EQ(stepper.value(), 1);
    EXPECT_EQ(takeCalls(), Calls{});
    stepper.setValue(1e9);
    EXPECT_EQ(stepper.value(), 150);
}

TEST_F(Stepper, ThatWrapsGoesOnAtTheOtherEnd)
{
    stepper.setWraps(true);
    stepper.setValue(150);
    tapPlus();
    EXPECT_EQ(stepper.value(), 1);
    tapMinus();
    EXPECT_EQ(stepper.value(), 150);
}

TEST_F(Stepper, GoesOnSteppingWhileItIsHeld)
{
    down(170, 116);
    EXPECT_EQ(stepper.value(), 91);
    advance(0.45);
    EXPECT_EQ(stepper.value(), 91);
    advance(0.5);
    EXPECT_EQ(stepper.value(), 96);
    up(170, 116);
    advance(1);
    EXPECT_EQ(stepper.value(), 96);
    stepper.setAutorepeat(false);
    down(170, 116);
    advance(2);
    EXPECT_EQ(stepper.value(), 97);
}

TEST_F(Stepper, ThatIsNotContinuousTellsOnceAtTheEnd)
{
    stepper.setContinuous(false);
    down(170, 116);
    advance(0.75);
    EXPECT_EQ(takeCalls(), Calls{});
    up(170, 116);
    EXPECT_EQ(takeCalls(), Calls{"UIStepper"});
}

TEST_F(Stepper, MayGoWhileItRepeats)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UIStepper");
    down(170, 116);
    stepper.removeFromSuperview();
    stepper = {};
    Finger::shared().cancel();
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIStepper"), before - 1);
    advance(1);
}

TEST_F(Stepper, SaysItsRange)
{
    const auto described = describeView(viewOf(stepper), false);
    EXPECT_EQ(described["value"], 90);
    EXPECT_EQ(described["minimum"], 1);
    EXPECT_EQ(described["maximum"], 150);
    EXPECT_EQ(described["step"], 1);
}

}
