// Geometry and decoration of layers.
#include "Screen.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

constexpr Rgba black{0, 0, 0}, fullRed{255, 0, 0}, fullGreen{0, 255, 0}, fullBlue{0, 0, 255};

}

TEST(Layer, FillsItsFrame)
{
    Screen screen({40, 40}, 2);
    screen.show(box({5, 10, 20, 8}, red));
    EXPECT_EQ(screen.lit(), (PixelRect{10, 20, 40, 16}));
    EXPECT_EQ(screen.at(10, 20), fullRed);
}

TEST(Layer, DrawsChildrenInItsOwnCoordinatesBackToFront)
{
    Screen screen({40, 40});
    Layer parent = box({10, 10, 20, 20}, red);
    parent.children = {box({0, 0, 10, 10}, green), box({5, 5, 10, 10}, blue)};
    screen.show(parent);
    EXPECT_EQ(screen.at(11, 11), fullGreen);
    EXPECT_EQ(screen.at(16, 16), fullBlue);
    EXPECT_EQ(screen.at(28, 28), fullRed);
}

TEST(Layer, ScrollsItsChildrenByTheOriginOfItsBounds)
{
    Screen screen({40, 40});
    Layer parent = Layer::withFrame({10, 10, 20, 20});
    parent.bounds.x = 5;
    parent.bounds.y = -5;
    parent.children = {box({5, -5, 4, 4}, red)};
    screen.show(parent);
    EXPECT_EQ(screen.lit(), (PixelRect{10, 10, 4, 4}));
}

TEST(Layer, TransformsAboutItsCentre)
{
    Screen screen({40, 40});
    Layer turned = box({10, 15, 20, 10}, red);
    turned.transform = AffineTransform::rotation(std::numbers::pi / 2);
    screen.show(turned);
    EXPECT_EQ(screen.lit(), (PixelRect{15, 10, 10, 20}));
    Layer scaled = box({10, 10, 20, 20}, red);
    scaled.transform = AffineTransform::scale(0.5, 0.5);
    screen.show(scaled);
    EXPECT_EQ(screen.lit(), (PixelRect{15, 15, 10, 10}));
}

TEST(Layer, CutsItsChildrenOnlyIfItClips)
{
    Screen screen({40, 40});
    Layer parent = Layer::withFrame({10, 10, 10, 10});
    parent.children = {box({5, 5, 10, 10}, red)};
    screen.show(parent);
    EXPECT_EQ(screen.lit(), (PixelRect{15, 15, 10, 10}));
    parent.clipsToBounds = true;
    screen.show(parent);
    EXPECT_EQ(screen.lit(), (PixelRect{15, 15, 5, 5}));
}

TEST(Layer, CutsItsChildrenToItsRoundCorners)
{
    Screen screen({40, 40});
    Layer parent = Layer::withFrame({10, 10, 20, 20});
    parent.clipsToBounds = true;
    parent.cornerRadius = 10;
    parent.children = {box({0, 0, 20, 20}, red)};
    screen.show(parent);
    EXPECT_EQ(screen.at(11, 11), black);
    EXPECT_EQ(screen.at(20, 20), fullRed);
    EXPECT_EQ(screen.at(20, 10).r > 200, true);
}

TEST(Layer, CutsItsChildrenToItsTurnedBounds)
{
    Screen screen({40, 40});
    Layer parent = Layer::withFrame({10, 10, 20, 20});
    parent.clipsToBounds = true;
    parent.transform = AffineTransform::rotation(std::numbers::pi / 4);
    parent.children = {box({-20, -20, 60, 60}, red)};
    screen.show(parent);
    EXPECT_EQ(screen.at(11, 11), black);
    EXPECT_EQ(screen.at(20, 8), fullRed);
}

TEST(Layer, ABorderLiesInsideTheBoundsAndOverTheChildren)
{
    Screen screen({40, 40});
    Layer parent = box({10, 10, 20, 20}, red);
    parent.borderWidth = 2;
    parent.borderColor = blue;
    parent.children = {box({0, 0, 20, 20}, green)};
    screen.show(parent);
    EXPECT_EQ(screen.lit(), (PixelRect{10, 10, 20, 20}));
    EXPECT_EQ(screen.at(11, 20), fullBlue);
    EXPECT_EQ(screen.at(12, 20), fullGreen);
}

TEST(Layer, ABorderWiderThanTheLayerFillsIt)
{
    Screen screen({20, 20});
    Layer layer = Layer::withFrame({5, 5, 10, 10});
    layer.borderWidth = 50;
    layer.borderColor = blue;
    screen.show(layer);
    EXPECT_EQ(screen.at(10, 10), fullBlue);
    EXPECT_EQ(screen.lit(), (PixelRect{5, 5, 10, 10}));
}

TEST(Layer, FadesWithItsChildrenAsOne)
{
    Screen screen({40, 40});
    Layer parent = box({0, 0, 40, 40}, red);
    parent.opacity = 0.5;
    parent.children = {box({0, 0, 20, 40}, blue)};
    screen.show(parent);
    // The child hides the parent; the red does not shine through.
    EXPECT_EQ(screen.at(10, 10), (Rgba{0, 0, 128}));
    EXPECT_EQ(screen.at(30, 10), (Rgba{128, 0, 0}));
}

TEST(Layer, CastsABlurredShadowOfItsShape)
{
    Screen screen({60, 60});
    Layer layer = box({20, 20, 20, 20}, red);
    layer.shadow = {1, white, 3, {0, 10}};
    screen.show(layer);
    EXPECT_EQ(screen.at(30, 30), fullRed);
    EXPECT_GT(screen.at(30, 45).g, 200);
    EXPECT_NEAR(screen.at(30, 49).g, 144, 3);
    EXPECT_NEAR(screen.at(30, 50).g, 111, 3);
    EXPECT_GT(screen.at(30, 53).g, 0);
    EXPECT_EQ(screen.at(30, 10).g, 0);
}

TEST(Layer, CastsTheShadowOfItsGlyphs)
{
    Screen screen({100, 60});
    Layer layer = label({0, 0, 100, 30}, "II", 30);
    textOf(layer).runs.front().color = red;
    screen.show(layer);
    const PixelRect glyphs = screen.lit();
    layer.shadow = {1, green, 0, {0, 30}};
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{glyphs.x, glyphs.y, glyphs.width, glyphs.height + 30}));
    EXPECT_EQ(screen.at(90, 45), black);
}

TEST(Layer, AClippingLayerCastsNoShadow)
{
    Screen screen({60, 60});
    Layer layer = box({20, 20, 20, 20}, red);
    layer.shadow = {1, white, 3, {0, 10}};
    layer.clipsToBounds = true;
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{20, 20, 20, 20}));
}

TEST(Layer, AShadowReachesInFromOutsideTheScreen)
{
    Screen screen({40, 40});
    Layer layer = box({10, -30, 20, 20}, red);
    layer.shadow = {1, white, 0, {0, 25}};
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{10, 0, 20, 15}));
}

TEST(Layer, AGradientRunsFromStartToEnd)
{
    Screen screen({10, 101});
    Layer layer = Layer::withFrame({0, 0, 10, 101});
    layer.content = Gradient{{red, blue}, {}, {0.5, 0}, {0.5, 1}};
    screen.show(layer);
    EXPECT_GT(screen.at(5, 0).r, 250);
    EXPECT_GT(screen.at(5, 100).b, 250);
    EXPECT_NEAR(screen.at(5, 50).r, 128, 2);
}

TEST(Layer, AGradientKeepsToItsLocations)
{
    Screen screen({10, 100});
    Layer layer = Layer::withFrame({0, 0, 10, 100});
    layer.content = Gradient{{red, red, blue}, {0, 0.8, 0.8}, {0, 0}, {0, 1}};
    screen.show(layer);
    EXPECT_EQ(screen.at(5, 78), fullRed);
    EXPECT_EQ(screen.at(5, 82), fullBlue);
}

TEST(Layer, AGradientOfOneColourIsPlainAndOneOfNoneIsNothing)
{
    Screen screen({10, 10});
    Layer layer = Layer::withFrame({0, 0, 10, 10});
    layer.content = Gradient{{green}, {}, {0, 0}, {0, 1}};
    screen.show(layer);
    EXPECT_EQ(screen.at(5, 5), fullGreen);
    layer.content = Gradient{};
    screen.show(layer);
    EXPECT_TRUE(screen.lit().isEmpty());
}

TEST(Layer, AbsurdNumbersDrawNothingOrWhatIsSeenOfThem)
{
    const double endless = std::numeric_limits<double>::infinity();
    const double noNumber = std::nan("");
    Screen screen({20, 20});
    for (const Rect& frame : {Rect{noNumber, 0, 5, 5}, Rect{0, 0, endless, 5}, Rect{0, 0, -5, -5}, Rect{5, 5, 0, 0}}) {
        screen.show(box(frame, red));
        EXPECT_TRUE(screen.lit().isEmpty());
    }
    Layer vast = box({-1e9, -1e9, 2e9, 2e9}, red);
    vast.cornerRadius = 1e9;
    vast.borderWidth = noNumber;
    vast.shadow = {1, white, 1e9, {1e9, noNumber}};
    screen.show(vast);
    EXPECT_EQ(screen.at(10, 10), fullRed);
    Layer flat = box({0, 0, 10, 10}, red);
    flat.transform = AffineTransform::scale(0, 1);
    screen.show(flat);
    EXPECT_TRUE(screen.lit().isEmpty());
}

TEST(Layer, AnEndlesslyDeepTreeIsCutOff)
{
    Layer layer = box({0, 0, 10, 10}, red);
    for (int i = 0; i < 1'000; ++i) {
        Layer parent = Layer::withFrame({0, 0, 10, 10});
        parent.children.push_back(std::move(layer));
        layer = std::move(parent);
    }
    layer.backgroundColor = green;
    Screen screen({10, 10});
    screen.show(layer);
    EXPECT_EQ(screen.at(5, 5), fullGreen);
}

}
