// UIControl: events, targets, states.
#include "TouchTest.hpp"

#include "Platform/UIKit/UIButton.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

using Events = UI::ControlEvents;

static void hide(UI::View self, SEL, const ObjC::Object&)
{
    self.setHidden(true);
}

class Control : public TouchTest {
protected:
    Control()
    {
        button = UI::Button::buttonWithType(UI::ButtonType::system);
        button.setFrame({{100, 100}, {80, 40}});
        add(button);
    }
    void listenTo(Events events) const { listen(button, events); }

    UI::Button button;
};

TEST_F(Control, ATapSendsTouchDownAndThenTouchUpInside)
{
    listenTo(Events::touchDown | Events::touchUpInside);
    down(120, 120);
    EXPECT_EQ(takeCalls(), Calls{"UIButton tracking"});
    EXPECT_TRUE(button.isHighlighted());
    up(120, 120);
    EXPECT_EQ(takeCalls(), Calls{"UIButton"});
    EXPECT_FALSE(button.isHighlighted());
}

TEST_F(Control, AFingerLiftedFarAwaySendsTouchUpOutside)
{
    listenTo(Events::touchUpInside);
    button.addTarget(listener, ObjC::selector<"heardAgain">(), Events::touchUpOutside);
    down(120, 120);
    move(300, 300);
    EXPECT_FALSE(button.isHighlighted());
    up(300, 300);
    EXPECT_EQ(takeCalls(), Calls{"again"});
    down(120, 120);
    // A little beside it counts as inside still.
    up(120, 190);
    EXPECT_EQ(takeCalls(), Calls{"UIButton"});
}

TEST_F(Control, AnActionTakesAsManyArgumentsAsItsNameSays)
{
    button.addTarget(listener, ObjC::selector<"heardAgain">(), Events::touchUpInside);
    button.addTarget(listener, ObjC::selector<"heard:">(), Events::touchUpInside);
    button.addTarget(listener, ObjC::selector<"heard:event:">(), Events::touchUpInside);
    tap(120, 120);
    EXPECT_EQ(takeCalls(), (Calls{"again", "UIButton", "both"}));
}

TEST_F(Control, ATargetIsToldOnceHoweverOftenItWasAdded)
{
    listenTo(Events::touchUpInside);
    listenTo(Events::touchUpInside | Events::valueChanged);
    button.sendActionsForControlEvents(Events::touchUpInside);
    button.sendActionsForControlEvents(Events::valueChanged);
    EXPECT_EQ(takeCalls().size(), 2u);
}

TEST_F(Control, ARemovedTargetIsNotTold)
{
    listenTo(Events::touchUpInside | Events::touchDown);
    button.removeTarget(listener, ObjC::selector<"heard:">(), Events::touchDown);
    button.sendActionsForControlEvents(Events::touchDown);
    EXPECT_EQ(takeCalls(), Calls{});
    button.sendActionsForControlEvents(Events::touchUpInside);
    EXPECT_EQ(takeCalls().size(), 1u);
    button.removeTarget({}, nullptr, Events::allEvents);
    button.sendActionsForControlEvents(Events::touchUpInside);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Control, WithoutATargetTheActionGoesUpTheResponders)
{
    static const Class panelClass
        = ObjC::ClassBuilder("HearingPanel", objc_getClass("UIView")).method<"heard:", &hide>().build();
    const id allocated = ObjC::sendMessage<id>(reinterpret_cast<id>(panelClass), ObjC::selector<"alloc">());
    const auto panel = UI::View::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
    add(panel);
    panel.addSubview(button);
    button.addTarget({}, ObjC::selector<"heard:">(), Events::touchUpInside);
    button.sendActionsForControlEvents(Events::touchUpInside);
    EXPECT_TRUE(panel.isHidden());
    button.addTarget({}, ObjC::selector<"nobodyKnowsThis:">(), Events::touchDown);
    button.sendActionsForControlEvents(Events::touchDown);
}

TEST_F(Control, ADisabledControlIsNotTouched)
{
    listenTo(Events::allEvents);
    button.setEnabled(false);
    tap(120, 120);
    EXPECT_EQ(takeCalls(), Calls{});
    button.setEnabled(true);
    tap(120, 120);
    EXPECT_EQ(takeCalls().size(), 2u);
}

TEST_F(Control, AControlThatGoesDuringItsActionLivesUntilItIsDone)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UIButton");
    button.addTarget(button, ObjC::selector<"removeFromSuperview">(), Events::touchUpInside);
    button = {};
    tap(120, 120);
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIButton"), before - 1);
}

TEST_F(Control, ATouchThatIsTakenAwayEndsWithoutAnAction)
{
    listenTo(Events::touchUpInside);
    button.addTarget(listener, ObjC::selector<"heardAgain">(), Events::touchCancel);
    down(120, 120);
    Finger::shared().cancel();
    EXPECT_EQ(takeCalls(), Calls{"again"});
    EXPECT_FALSE(button.isTracking());
}

TEST_F(Control, AButtonShowsTheTitleOfItsState)
{
    button.setTitle("Time"_ns);
    button.setTitle("Pressed"_ns, UI::ControlState::highlighted);
    EXPECT_EQ(textOf(button.titleLabel().text()), "Time");
    button.setHighlighted(true);
    EXPECT_EQ(textOf(button.currentTitle()), "Pressed");
    EXPECT_EQ(textOf(button.titleForState(UI::ControlState::disabled)), "Time");
}

TEST_F(Control, AButtonsTitleAndPictureStandSideBySideInTheMiddle)
{
    button.setTitle("Go"_ns);
    button.setImage(UI::Image::systemImageNamed("info.circle"_ns));
    layOut();
    const CGRect image = button.imageView().frame(), title = button.titleLabel().frame();
    EXPECT_GT(image.size.width, 0);
    EXPECT_EQ(title.origin.x, image.origin.x + image.size.width + 4);
    EXPECT_NEAR(image.origin.x, 80 - title.origin.x - title.size.width, 1e-9);
    const auto described = describeView(viewOf(button), false);
    EXPECT_EQ(described["title"], "Go");
    EXPECT_EQ(described["symbol"], "info.circle");
}

TEST_F(Control, ASystemButtonTakesTheTintForItsTitle)
{
    button.setTintColor(UI::Color::colorWithRed(1, 0, 0, 1));
    EXPECT_TRUE((button.titleLabel().textColor().send<bool, "isEqual:">(UI::Color::colorWithRed(1, 0, 0, 1))));
    button.setTitleColor(UI::Color::blackColor());
    EXPECT_EQ(button.titleLabel().textColor(), UI::Color::blackColor());
}

}
