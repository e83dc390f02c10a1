// Which view a finger hits.
#include "TouchTest.hpp"

namespace Simulator {

class HitTesting : public TouchTest {
protected:
    UI::View hit(double x, double y) const
    {
        return window.send<UI::View, "hitTest:withEvent:">(CGPoint{x, y}, NS::Object());
    }
    UI::View placed(CGRect frame) const
    {
        const auto view = makeView(frame);
        add(view);
        return view;
    }
};

TEST_F(HitTesting, TheFrontmostDeepestViewIsHit)
{
    const auto back = placed({{0, 0}, {100, 100}}), front = placed({{50, 0}, {100, 100}});
    const auto inner = makeView({{10, 10}, {20, 20}});
    front.addSubview(inner);
    EXPECT_EQ(hit(40, 10), back);
    EXPECT_EQ(hit(55, 5), front);
    EXPECT_EQ(hit(65, 15), inner);
    EXPECT_EQ(hit(300, 300), window);
    EXPECT_FALSE(hit(-1, 0));
}

TEST_F(HitTesting, WhatIsHiddenTransparentOrNotInteractiveIsPassedThrough)
{
    const auto back = placed({{0, 0}, {100, 100}}), front = placed({{0, 0}, {100, 100}});
    front.setHidden(true);
    EXPECT_EQ(hit(5, 5), back);
    front.setHidden(false);
    front.setAlpha(0.009);
    EXPECT_EQ(hit(5, 5), back);
    front.setAlpha(0.01);
    EXPECT_EQ(hit(5, 5), front);
    front.setUserInteractionEnabled(false);
    EXPECT_EQ(hit(5, 5), back);
}

TEST_F(HitTesting, AViewBeyondItsSuperviewIsNotHit)
{
    const auto outer = placed({{0, 0}, {50, 50}});
    outer.addSubview(makeView({{40, 40}, {50, 50}}));
    EXPECT_EQ(hit(70, 70), window);
}

TEST_F(HitTesting, ATransformMovesWhatIsHit)
{
    const auto view = placed({{100, 100}, {100, 100}});
    view.setTransform(CGAffineTransformMakeScale(0.5, 0.5));
    EXPECT_EQ(hit(110, 110), window);
    EXPECT_EQ(hit(130, 130), view);
    view.setTransform(CGAffineTransformMakeScale(0, 0));
    EXPECT_EQ(hit(150, 150), window);
}

TEST_F(HitTesting, LabelsLetTouchesThrough)
{
    const auto label = makeLabel({{0, 0}, {100, 100}});
    add(label);
    EXPECT_EQ(hit(5, 5), window);
}

}
