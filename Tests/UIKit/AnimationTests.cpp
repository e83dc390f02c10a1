// Animations of views: values, pictures and the end.
#include "TouchTest.hpp"

#include "Simulator/QuartzCore/LayerMotion.hpp"
#include "Simulator/UIKit/LayerTree.hpp"

namespace Simulator {

using Options = UI::AnimationOptions;

class Animation : public TouchTest {
protected:
    Animation()
    {
        view() = makeView({{0, 0}, {100, 40}});
        add(view());
        finished() = 0;
    }
    ~Animation() override { view() = {}; }

    /// What blocks without a context reach.
    static UI::View& view()
    {
        static UI::View animated;
        return animated;
    }
    static int& finished()
    {
        static int count;
        return count;
    }
    static void countFinished(bool isFinished) { finished() += isFinished; }
    static void moveDown() { view().setFrame({{0, 200}, {100, 80}}); }
    static Graphics::Layer shown() { return buildLayer(viewOf(view())); }
};

TEST_F(Animation, TheValuesChangeAtOnceAndThePictureFollows)
{
    UI::View::animateWithDuration(0.5, 0, Options::curveLinear, moveDown);
    EXPECT_EQ(view().frame(), CGRectMake(0, 200, 100, 80));
    EXPECT_EQ(shown().position, (Graphics::Point{50, 20}));
    EXPECT_EQ(shown().bounds.height, 40);
    advance(0.25);
    EXPECT_EQ(shown().position, (Graphics::Point{50, 130}));
    EXPECT_EQ(shown().bounds.height, 60);
    advance(0.25);
    EXPECT_EQ(shown().position, (Graphics::Point{50, 240}));
}

TEST_F(Animation, EaseInStartsSlowlyAndEaseOutEndsSlowly)
{
    EXPECT_NEAR(progress(AnimationCurve::easeIn, 0.5), 0.3154, 0.0005);
    EXPECT_NEAR(progress(AnimationCurve::easeOut, 0.5), 0.6846, 0.0005);
    EXPECT_NEAR(progress(AnimationCurve::easeInOut, 0.5), 0.5, 1e-6);
    EXPECT_NEAR(progress(AnimationCurve::easeInOut, 0.25), 0.1292, 0.0005);
    EXPECT_EQ(progress(AnimationCurve::linear, 0.3), 0.3);
    for (auto curve : {AnimationCurve::easeIn, AnimationCurve::easeOut, AnimationCurve::easeInOut}) {
        EXPECT_NEAR(progress(curve, 0), 0, 1e-9);
        EXPECT_NEAR(progress(curve, 1), 1, 1e-9);
    }
    UI::View::animateWithDuration(0.5, 0, Options::curveEaseIn, moveDown);
    advance(0.25);
    EXPECT_NEAR(shown().position.y, 20 + 220 * 0.3154, 0.2);
}

TEST_F(Animation, ADelayedOneWaitsWithItsOldLook)
{
    UI::View::animateWithDuration(1, 0.5, Options::curveLinear, moveDown, countFinished);
    advance(0.5);
    EXPECT_EQ(shown().position.y, 20);
    advance(0.5);
    EXPECT_EQ(shown().position.y, 130);
    EXPECT_EQ(finished(), 0);
    advance(0.5);
    EXPECT_EQ(finished(), 1);
}

TEST_F(Animation, OpacityColourAndCornersMoveToo)
{
    view().setBackgroundColor(UI::Color::colorWithRed(1, 0, 0, 1));
    UI::View::animateWithDuration(1, 0, Options::curveLinear, [] {
        view().setAlpha(0);
        view().setBackgroundColor(UI::Color::colorWithRed(0, 0, 1, 1));
        view().layer().setCornerRadius(20);
    });
    advance(0.5);
    EXPECT_EQ(shown().opacity, 0.5);
    EXPECT_EQ(shown().cornerRadius, 10);
    EXPECT_EQ(shown().backgroundColor, (Graphics::Color{0.5, 0, 0.5, 1}));
    // Faded out, it is there until the end.
    EXPECT_EQ(buildLayer(windowOf(window)).children.size(), 1u);
    advance(0.5);
    EXPECT_EQ(buildLayer(windowOf(window)).children.size(), 0u);
}

TEST_F(Animation, OfNoDurationIsImmediateAndToldInTheNextTurn)
{
    UI::View::animateWithDuration(0, 0, Options::transitionCrossDissolve, moveDown, countFinished);
    EXPECT_EQ(shown().position.y, 240);
    EXPECT_EQ(finished(), 0);
    advance(0);
    EXPECT_EQ(finished(), 1);
}

TEST_F(Animation, ThatMovesNothingIsOverAtOnce)
{
    UI::View::animateWithDuration(
        0.5, 0, Options::curveEaseIn, [] {}, countFinished);
    advance(0);
    EXPECT_EQ(finished(), 1);
}

TEST_F(Animation, TwoOfTheSameViewAddUp)
{
    UI::View::animateWithDuration(1, 0, Options::curveLinear, [] { view().setFrame({{100, 0}, {100, 40}}); });
    advance(0.5);
    UI::View::animateWithDuration(1, 0, Options::curveLinear, [] { view().setFrame({{200, 0}, {100, 40}}); });
    EXPECT_EQ(shown().position.x, 100);
    advance(0.5);
    EXPECT_EQ(shown().position.x, 200);
    advance(0.5);
    EXPECT_EQ(shown().position.x, 250);
}

TEST_F(Animation, WhatChangesOutsideAnAnimationDoesNotMove)
{
    moveDown();
    EXPECT_EQ(shown().position.y, 240);
}

TEST_F(Animation, ABlockMayCarryAContext)
{
    int runs = 0;
    UI::View::animateWithDuration(0.5, 0, Options::curveLinear,
        {&runs,
            [](void* context) {
                ++*static_cast<int*>(context);
                moveDown();
            }},
        {&runs, [](void* context, bool isFinished) { *static_cast<int*>(context) += isFinished ? 10 : 100; }});
    EXPECT_EQ(runs, 1);
    advance(0.5);
    EXPECT_EQ(runs, 11);
}

TEST_F(Animation, IsRecorded)
{
    UI::View::animateWithDuration(0.5, 0.25, Options::curveEaseIn, moveDown);
    const auto records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0]["kind"], "animation");
    EXPECT_EQ(records[0]["duration"], 0.5);
    EXPECT_EQ(records[0]["delay"], 0.25);
    EXPECT_EQ(records[0]["options"], 1 << 16);
}

TEST_F(Animation, ATransitionShowsTheNewContentAndEndsInTime)
{
    UI::View::transitionWithView(
        view(), 0.5, Options::transitionCrossDissolve, [] { view().setHidden(true); }, countFinished);
    EXPECT_TRUE(view().isHidden());
    advance(0.4);
    EXPECT_EQ(finished(), 0);
    advance(0.1);
    EXPECT_EQ(finished(), 1);
}

TEST_F(Animation, KeepsNoViewAlive)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UIView");
    UI::View::animateWithDuration(0.5, 0, Options::curveLinear, moveDown);
    view().removeFromSuperview();
    view() = {};
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIView"), before - 1);
    advance(1);
}

}
