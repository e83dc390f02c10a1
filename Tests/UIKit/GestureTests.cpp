// Taps and long presses.
#include "TouchTest.hpp"

#include "Platform/UIKit/UIButton.hpp"
#include "Platform/UIKit/UIGestureRecognizer.hpp"

namespace Simulator {

static UI::View watched;
static UI::LongPressGestureRecognizer once;

static void removeWatched(ObjC::Object, SEL, const ObjC::Object&)
{
    watched.removeGestureRecognizer(once);
    once = {};
}

class Gesture : public TouchTest {
protected:
    Gesture()
    {
        view = makeView({{0, 0}, {200, 200}});
        add(view);
    }
    UI::LongPressGestureRecognizer addLongPress() const
    {
        const auto recognizer = UI::LongPressGestureRecognizer::withTarget(listener, ObjC::selector<"heard:">());
        view.addGestureRecognizer(recognizer);
        return recognizer;
    }
    UI::TapGestureRecognizer addTap() const
    {
        const auto recognizer = UI::TapGestureRecognizer::withTarget(listener, ObjC::selector<"heard:">());
        view.addGestureRecognizer(recognizer);
        return recognizer;
    }
    UI::View view;
    const Calls pressBegan{"UILongPressGestureRecognizer 1"};
    const Calls pressChanged{"UILongPressGestureRecognizer 2"};
    const Calls pressEnded{"UILongPressGestureRecognizer 3"};
    const Calls tapped{"UITapGestureRecognizer 3"};
};

TEST_F(Gesture, ALongPressBeginsAfterHalfASecondAndEndsWithTheFinger)
{
    const auto recognizer = addLongPress();
    EXPECT_EQ(recognizer.view(), view);
    down(50, 60);
    advance(0.499);
    EXPECT_EQ(takeCalls(), Calls{});
    advance(0.001);
    EXPECT_EQ(takeCalls(), pressBegan);
    EXPECT_EQ(recognizer.locationInView(view), (CGPoint{50, 60}));
    move(150, 60);
    EXPECT_EQ(takeCalls(), pressChanged);
    up(150, 60);
    EXPECT_EQ(takeCalls(), pressEnded);
    EXPECT_EQ(recognizer.state(), UI::GestureRecognizerState::possible);
}

TEST_F(Gesture, AShortTouchIsNoLongPress)
{
    addLongPress();
    down(50, 60);
    advance(0.4);
    up(50, 60);
    advance(1);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Gesture, AFingerThatMovesTooFarMakesNoLongPress)
{
    const auto recognizer = addLongPress();
    down(50, 60);
    move(60, 60);
    advance(0.5);
    EXPECT_EQ(takeCalls(), pressBegan);
    up(60, 60);
    takeCalls();
    down(50, 60);
    move(60.5, 60);
    advance(1);
    up(60.5, 60);
    EXPECT_EQ(takeCalls(), Calls{});
    recognizer.setAllowableMovement(100);
    down(50, 60);
    move(149, 60);
    advance(0.5);
    EXPECT_EQ(takeCalls(), pressBegan);
}

TEST_F(Gesture, TheDurationOfALongPressCanBeSet)
{
    addLongPress().setMinimumPressDuration(0.2);
    down(50, 60);
    advance(0.2);
    EXPECT_EQ(takeCalls(), pressBegan);
}

TEST_F(Gesture, ALongPressOnAButtonTakesTheTouchFromIt)
{
    addLongPress();
    const auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    button.setFrame({{0, 0}, {50, 50}});
    view.addSubview(button);
    button.addTarget(listener, ObjC::selector<"heardAgain">(), UI::ControlEvents::touchUpInside);
    down(20, 20);
    EXPECT_TRUE(button.isTracking());
    advance(0.6);
    EXPECT_FALSE(button.isTracking());
    up(20, 20);
    EXPECT_EQ(takeCalls(), (Calls{pressBegan[0], pressEnded[0]}));
}

TEST_F(Gesture, ARecogniserThatLeavesTheTouchToTheViewDoesSo)
{
    addLongPress().setCancelsTouchesInView(false);
    const auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    button.setFrame({{0, 0}, {50, 50}});
    view.addSubview(button);
    button.addTarget(listener, ObjC::selector<"heardAgain">(), UI::ControlEvents::touchUpInside);
    down(20, 20);
    advance(0.6);
    up(20, 20);
    EXPECT_EQ(takeCalls(), (Calls{pressBegan[0], pressEnded[0], "again"}));
}

TEST_F(Gesture, ARecogniserThatIsRemovedInItsActionHearsNoMore)
{
    watched = view;
    once = addLongPress();
    static const Class removing = ObjC::ClassBuilder("RecogniserRemover", objc_getClass("NSObject"))
                                      .method<"remove:", &removeWatched>()
                                      .build();
    const auto remover = ObjC::Object::adopting(ObjC::sendMessage<id>(
        ObjC::sendMessage<id>(reinterpret_cast<id>(removing), ObjC::selector<"alloc">()), ObjC::selector<"init">()));
    once.addTarget(remover, ObjC::selector<"remove:">());
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UILongPressGestureRecognizer");
    down(50, 60);
    advance(0.5);
    EXPECT_EQ(takeCalls(), pressBegan);
    up(50, 60);
    EXPECT_EQ(takeCalls(), Calls{});
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UILongPressGestureRecognizer"), before - 1);
    EXPECT_EQ(view.gestureRecognizers().count(), 0u);
    watched = {};
}

TEST_F(Gesture, ADisabledRecogniserSeesNothing)
{
    const auto recognizer = addLongPress();
    recognizer.setEnabled(false);
    down(50, 60);
    advance(1);
    up(50, 60);
    EXPECT_EQ(takeCalls(), Calls{});
    recognizer.setEnabled(true);
    down(50, 60);
    advance(0.5);
    takeCalls();
    recognizer.setEnabled(false);
    EXPECT_EQ(takeCalls(), Calls{"UILongPressGestureRecognizer 4"});
}

TEST_F(Gesture, ATapIsAShortTouchThatStaysNear)
{
    addTap();
    tap(50, 60);
    EXPECT_EQ(takeCalls(), tapped);
    down(50, 60);
    advance(0.8);
    up(50, 60);
    EXPECT_EQ(takeCalls(), Calls{});
    down(50, 60);
    up(150, 60);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Gesture, TwoTapsFollowOneAnotherQuickly)
{
    addTap().setNumberOfTapsRequired(2);
    tap(50, 60);
    EXPECT_EQ(takeCalls(), Calls{});
    advance(0.2);
    tap(50, 60);
    EXPECT_EQ(takeCalls(), tapped);
    advance(0.5);
    tap(50, 60);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Gesture, ATapOnAButtonIsTheButtons)
{
    addTap();
    const auto button = UI::Button::buttonWithType(UI::ButtonType::system);
    button.setFrame({{0, 0}, {50, 50}});
    view.addSubview(button);
    button.addTarget(listener, ObjC::selector<"heardAgain">(), UI::ControlEvents::touchUpInside);
    tap(20, 20);
    EXPECT_EQ(takeCalls(), Calls{"again"});
}

TEST_F(Gesture, OfALongPressAndATapOnlyOneComesOfATouch)
{
    addTap();
    addLongPress();
    down(50, 60);
    advance(0.6);
    up(50, 60);
    EXPECT_EQ(takeCalls(), (Calls{pressBegan[0], pressEnded[0]}));
    tap(50, 60);
    EXPECT_EQ(takeCalls(), tapped);
}

TEST_F(Gesture, RecognisersGoWithTheirView)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UILongPressGestureRecognizer");
    addLongPress();
    // Waiting for the half second.
    down(50, 60);
    view.removeFromSuperview();
    view = {};
    up(50, 60);
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UILongPressGestureRecognizer"), before);
    advance(1);
    EXPECT_EQ(takeCalls(), Calls{});
}

}
