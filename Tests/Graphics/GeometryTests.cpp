// Points, transforms and pixel rectangles.
#include "Simulator/Graphics/Geometry.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace Simulator::Graphics {

TEST(Geometry, AConcatenatedTransformAppliesTheFirstOneFirst)
{
    const auto transform = AffineTransform::scale(2, 3).concat(AffineTransform::translation(10, 20));
    EXPECT_EQ(transform.apply(Point{1, 1}), (Point{12, 23}));
}

TEST(Geometry, AQuarterTurnMovesRightToDown)
{
    const Point turned = AffineTransform::rotation(std::numbers::pi / 2).apply(Point{1, 0});
    EXPECT_NEAR(turned.x, 0, 1e-12);
    EXPECT_NEAR(turned.y, 1, 1e-12);
}

TEST(Geometry, AnInvertedTransformLeadsBack)
{
    const AffineTransform transform = {2, 1, -1, 3, 5, 7};
    const Point back = transform.inverted()->apply(transform.apply(Point{4, -2}));
    EXPECT_NEAR(back.x, 4, 1e-9);
    EXPECT_NEAR(back.y, -2, 1e-9);
}

TEST(Geometry, AFlatTransformHasNoInverse)
{
    EXPECT_FALSE(AffineTransform::scale(0, 1).inverted());
    EXPECT_FALSE(AffineTransform::scale(std::numeric_limits<double>::infinity(), 1).inverted());
}

TEST(Geometry, ATransformedRectangleIsTheUprightOneAroundIt)
{
    const Rect turned = AffineTransform::rotation(std::numbers::pi / 2).apply(Rect{0, 0, 4, 2});
    EXPECT_NEAR(turned.x, -2, 1e-12);
    EXPECT_NEAR(turned.y, 0, 1e-12);
    EXPECT_NEAR(turned.width, 2, 1e-12);
    EXPECT_NEAR(turned.height, 4, 1e-12);
}

TEST(Geometry, PixelsAroundARectangleAreAllThatItTouches)
{
    EXPECT_EQ(PixelRect::around({0.5, 1, 2, 2}), (PixelRect{0, 1, 3, 2}));
    EXPECT_EQ(PixelRect::nearest({0.4, 1.6, 2, 2}), (PixelRect{0, 2, 2, 2}));
}

TEST(Geometry, PixelsOfAnEndlessRectangleStayCountable)
{
    const PixelRect pixels = PixelRect::around({-1e300, -1e300, 2e300, 2e300});
    EXPECT_TRUE(pixels.contains({-10'000, -10'000, 20'000, 20'000}));
    EXPECT_GT(pixels.width, 0);
}

TEST(Geometry, RectanglesApartShareNothing)
{
    EXPECT_TRUE((PixelRect{0, 0, 5, 5}.intersectionWith({5, 0, 5, 5}).isEmpty()));
    EXPECT_EQ((PixelRect{0, 0, 5, 5}.intersectionWith({3, 2, 9, 9})), (PixelRect{3, 2, 2, 3}));
    EXPECT_EQ((PixelRect{0, 0, 1, 1}.unionWith({4, 4, 1, 1})), (PixelRect{0, 0, 5, 5}));
}

TEST(Geometry, ColoursOutsideTheirRangeAreBroughtBackIntoIt)
{
    const double nothing = std::nan("");
    EXPECT_EQ((Color{2, -1, nothing, 0.5}.clamped()), (Color{1, 0, 0, 0.5}));
}

}
