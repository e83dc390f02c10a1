// NSLayoutConstraint and its anchors.
#include "TouchTest.hpp"

#include "Platform/QuartzCore/CAGradientLayer.hpp"
#include "Platform/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/QuartzCore/CAGradientLayer.hpp"

namespace Simulator {

class Constraints : public TouchTest {
protected:
    Constraints()
    {
        outer = makeView({{10, 20}, {300, 400}});
        inner = makeView();
        inner.setTranslatesAutoresizingMaskIntoConstraints(false);
        add(outer);
        outer.addSubview(inner);
    }
    NS::Array allEdges() const
    {
        return NS::Array::of(inner.leadingAnchor().constraintEqualToAnchor(outer.leadingAnchor()),
            inner.trailingAnchor().constraintEqualToAnchor(outer.trailingAnchor()),
            inner.topAnchor().constraintEqualToAnchor(outer.topAnchor()),
            inner.bottomAnchor().constraintEqualToAnchor(outer.bottomAnchor()));
    }
    UI::View outer;
    UI::View inner;
};

TEST_F(Constraints, AViewPinnedByItsFourEdgesFillsItsSuperview)
{
    NS::LayoutConstraint::activateConstraints(allEdges());
    layOut();
    EXPECT_EQ(inner.frame(), CGRectMake(0, 0, 300, 400));
    outer.setFrame({{0, 0}, {200, 100}});
    layOut();
    EXPECT_EQ(inner.frame(), CGRectMake(0, 0, 200, 100));
}

TEST_F(Constraints, AConstantMovesAnEdgeAndOneEdgeAloneMovesTheView)
{
    inner.setFrame({{0, 0}, {50, 60}});
    const auto trailing = inner.trailingAnchor().constraintEqualToAnchor(outer.trailingAnchor(), -10);
    trailing.setActive(true);
    // Said the other way round it means the same.
    outer.topAnchor().constraintEqualToAnchor(inner.topAnchor(), -5).setActive(true);
    layOut();
    EXPECT_EQ(inner.frame(), CGRectMake(240, 5, 50, 60));
    trailing.setConstant(-20);
    layOut();
    EXPECT_EQ(inner.frame().origin.x, 230);
}

TEST_F(Constraints, ThatAreNotActiveDoNothing)
{
    const auto edges = allEdges();
    layOut();
    EXPECT_EQ(inner.frame(), CGRect());
    NS::LayoutConstraint::activateConstraints(edges);
    NS::LayoutConstraint::deactivateConstraints(edges);
    layOut();
    EXPECT_EQ(inner.frame(), CGRect());
    EXPECT_FALSE(edges.at<NS::LayoutConstraint>(0).isActive());
}

TEST_F(Constraints, GoWithTheirViews)
{
    pool.emplace();
    NS::LayoutConstraint kept;
    {
        const auto edges = allEdges();
        NS::LayoutConstraint::activateConstraints(edges);
        kept = edges.at<NS::LayoutConstraint>(0);
    }
    layOut();
    inner.removeFromSuperview();
    inner = {};
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("NSLayoutConstraint"), 1);
    EXPECT_FALSE(kept.isActive());
    kept.setActive(true);
    kept.setConstant(5);
    EXPECT_FALSE(kept.isActive());
}

TEST_F(Constraints, AnEdgeOfAStrangerRaises)
{
    EXPECT_ANY_THROW(inner.leadingAnchor().constraintEqualToAnchor(makeView().leadingAnchor()).setActive(true));
    layOut();
    EXPECT_EQ(inner.frame(), CGRect());
}

class GradientLayer : public TouchTest { };

TEST_F(GradientLayer, RunsBetweenItsColours)
{
    const auto layer = CA::GradientLayer::layer();
    layer.setColorsOf(UI::Color::clearColor(), UI::Color::colorWithRed(1, 0, 0, 1));
    layer.setStartPoint({0, 0.5});
    layer.setEndPoint({1, 0.5});
    EXPECT_EQ(layer.colors().count(), 2u);
    const auto content = standIn<CAGradientLayer>(layer.raw()).layerContent();
    const auto* gradient = std::get_if<Graphics::Gradient>(&content);
    ASSERT_TRUE(gradient);
    EXPECT_EQ(gradient->colors, (std::vector<Graphics::Color>{{0, 0, 0, 0}, {1, 0, 0, 1}}));
    EXPECT_EQ(gradient->start, (Graphics::Point{0, 0.5}));
    EXPECT_EQ(gradient->end, (Graphics::Point{1, 0.5}));
}

TEST_F(GradientLayer, WithoutColoursShowsNothing)
{
    const auto layer = CA::GradientLayer::layer();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(standIn<CAGradientLayer>(layer.raw()).layerContent()));
    layer.setColors(NS::Array::of("red"_ns));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(standIn<CAGradientLayer>(layer.raw()).layerContent()));
}

}
