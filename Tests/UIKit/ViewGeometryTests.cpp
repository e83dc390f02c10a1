// Frames, bounds, centres and transforms of views.
#include "UIKitTest.hpp"

#include <cmath>

namespace Simulator {

class ViewGeometry : public UIKitTest { };

TEST_F(ViewGeometry, FrameTellsWhatItWasSetTo)
{
    const auto view = makeView({{10, 20}, {30, 40}});
    EXPECT_EQ(view.frame(), CGRectMake(10, 20, 30, 40));
    EXPECT_EQ(view.bounds(), CGRectMake(0, 0, 30, 40));
    EXPECT_EQ((view.send<CGPoint, "center">()), (CGPoint{25, 40}));
}

TEST_F(ViewGeometry, ATransformScalesTheFrameAboutTheCentre)
{
    const auto view = makeView({{10, 20}, {30, 40}});
    view.setTransform(CGAffineTransformMakeScale(2, 0.5));
    EXPECT_EQ(view.frame(), CGRectMake(-5, 30, 60, 20));
    EXPECT_EQ(view.bounds(), CGRectMake(0, 0, 30, 40));
    view.setTransform(CGAffineTransformIdentity);
    EXPECT_EQ(view.frame(), CGRectMake(10, 20, 30, 40));
}

TEST_F(ViewGeometry, AFrameSetUnderATransformKeepsTheTransform)
{
    const auto view = makeView();
    view.setTransform(CGAffineTransformMakeScale(2, 4));
    view.setFrame({{0, 0}, {100, 100}});
    EXPECT_EQ(view.frame(), CGRectMake(0, 0, 100, 100));
    EXPECT_EQ(view.bounds(), CGRectMake(0, 0, 50, 25));
    EXPECT_EQ(view.transform(), CGAffineTransformMakeScale(2, 4));
}

TEST_F(ViewGeometry, ATransformOfNoSizeKeepsTheBounds)
{
    const auto view = makeView({{0, 0}, {10, 10}});
    view.setTransform(CGAffineTransformMakeScale(0, 0));
    view.setFrame({{0, 0}, {100, 100}});
    EXPECT_EQ(view.bounds(), CGRectMake(0, 0, 10, 10));
    EXPECT_EQ((view.send<CGPoint, "center">()), (CGPoint{50, 50}));
}

TEST_F(ViewGeometry, AGeometryThatIsNoNumberRaises)
{
    const auto view = makeView({{10, 20}, {30, 40}});
    EXPECT_ANY_THROW(view.setFrame({{std::nan(""), 0}, {1, 1}}));
    EXPECT_ANY_THROW(view.setBounds({{0, 0}, {INFINITY, 1}}));
    EXPECT_ANY_THROW(view.setCenter({0, std::nan("")}));
    EXPECT_ANY_THROW(view.setTransform(CGAffineTransformMakeScale(std::nan(""), 1)));
    EXPECT_EQ(view.frame(), CGRectMake(10, 20, 30, 40));
    EXPECT_EQ(view.transform(), CGAffineTransformIdentity);
}

TEST_F(ViewGeometry, AlphaStaysWithinZeroAndOne)
{
    const auto view = makeView();
    EXPECT_EQ(view.alpha(), 1);
    view.setAlpha(1.5);
    EXPECT_EQ(view.alpha(), 1);
    view.setAlpha(-1);
    EXPECT_EQ(view.alpha(), 0);
    view.setAlpha(0.8);
    view.setAlpha(std::nan(""));
    EXPECT_EQ(view.alpha(), 0.8);
}

TEST_F(ViewGeometry, PointsConvertThroughTransformsAndScrolledBounds)
{
    const auto outer = makeView({{100, 100}, {200, 200}});
    const auto inner = makeView({{10, 10}, {50, 50}});
    const auto stranger = makeView({{5, 5}, {10, 10}});
    outer.addSubview(inner);
    outer.addSubview(stranger);
    outer.setBounds({{0, 20}, {200, 200}});
    EXPECT_EQ((inner.send<CGPoint, "convertPoint:toView:">(CGPoint{1, 1}, outer)), (CGPoint{11, 11}));
    EXPECT_EQ((inner.send<CGPoint, "convertPoint:toView:">(CGPoint{1, 1}, UI::View())), (CGPoint{111, 91}));
    EXPECT_EQ((inner.send<CGPoint, "convertPoint:fromView:">(CGPoint{0, 0}, stranger)), (CGPoint{-5, -5}));
    inner.setTransform(CGAffineTransformMakeScale(2, 2));
    EXPECT_EQ((inner.send<CGRect, "convertRect:toView:">(inner.bounds(), outer)), CGRectMake(-15, -15, 100, 100));
    EXPECT_EQ((outer.send<CGRect, "convertRect:fromView:">(inner.bounds(), inner)), CGRectMake(-15, -15, 100, 100));
}

TEST_F(ViewGeometry, ALayerChangesItsView)
{
    const auto view = makeView({{0, 0}, {10, 10}});
    const auto layer = view.layer();
    layer.send<void, "setFrame:">(CGRectMake(1, 2, 3, 4));
    layer.setCornerRadius(5);
    layer.send<void, "setMasksToBounds:">(true);
    EXPECT_EQ(view.frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_TRUE((view.send<bool, "clipsToBounds">()));
    EXPECT_EQ(viewOf(view).properties.cornerRadius, 5);
    EXPECT_EQ(view.layer(), layer);
}

TEST_F(ViewGeometry, ALayerOutlivesItsView)
{
    auto view = makeView({{1, 2}, {3, 4}});
    const auto layer = view.layer();
    layer.setCornerRadius(7);
    pool.reset();
    view = {};
    EXPECT_EQ(layer.cornerRadius(), 7);
    EXPECT_EQ((layer.send<CGRect, "frame">()), CGRectMake(1, 2, 3, 4));
}

TEST_F(ViewGeometry, TheLayersColourIsTheViewsBackground)
{
    const auto view = makeView();
    view.setBackgroundColor(UI::Color::whiteColor());
    EXPECT_EQ(view.backgroundColor(), UI::Color::whiteColor());
    const auto red = UI::Color::colorWithRed(1, 0, 0, 1);
    view.layer().send<void, "setBackgroundColor:">(red.CGColor());
    EXPECT_TRUE((view.backgroundColor().send<bool, "isEqual:">(red)));
    view.setBackgroundColor({});
    EXPECT_FALSE(view.backgroundColor());
}

TEST_F(ViewGeometry, ANewLayerHasThePlatformsDefaults)
{
    const auto layer = makeView().layer();
    EXPECT_EQ(layer.cornerRadius(), 0);
    EXPECT_EQ(layer.shadowOpacity(), 0);
    EXPECT_EQ(layer.shadowRadius(), 3);
    EXPECT_EQ(layer.shadowOffset(), (CGSize{0, -3}));
    EXPECT_EQ(CGColorGetNumberOfComponents(layer.borderColor()), 2u);
}

TEST_F(ViewGeometry, SublayersHangInOneLayerOnly)
{
    const auto first = CA::Layer::sendClass<CA::Layer, "layer">();
    const auto second = CA::Layer::sendClass<CA::Layer, "layer">();
    const auto child = CA::Layer::sendClass<CA::Layer, "layer">();
    first.send<void, "addSublayer:">(child);
    second.send<void, "insertSublayer:atIndex:">(child, 9u);
    child.send<void, "addSublayer:">(second);
    EXPECT_EQ((first.send<NS::Array, "sublayers">().count()), 0u);
    EXPECT_EQ((second.send<NS::Array, "sublayers">().at<CA::Layer>(0)), child);
    EXPECT_EQ((child.send<NS::Array, "sublayers">().count()), 0u);
    child.send<void, "removeFromSuperlayer">();
    EXPECT_FALSE((child.send<CA::Layer, "superlayer">()));
}

}
