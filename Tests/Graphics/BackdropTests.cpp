// Layers that blur what is behind them.
#include "Screen.hpp"

#include <gtest/gtest.h>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

Layer backdrop(const Rect& frame, double radius, const Color& tint = {0, 0, 0, 0})
{
    Layer layer = Layer::withFrame(frame);
    layer.content = BackdropBlur{radius, tint};
    return layer;
}

}

TEST(Backdrop, BlursWhatIsBehindAndNothingBeside)
{
    Screen screen({100, 100});
    screen.show({box({0, 0, 50, 100}, white), backdrop({20, 20, 60, 60}, 8)});
    EXPECT_EQ(screen.at(49, 10).g, 255);
    EXPECT_EQ(screen.at(50, 10).g, 0);
    EXPECT_NEAR(screen.at(49, 50).g, 128, 15);
    EXPECT_GT(screen.at(40, 50).g, screen.at(50, 50).g);
    EXPECT_GT(screen.at(50, 50).g, screen.at(60, 50).g);
}

TEST(Backdrop, DoesNotBlurWhatIsInFront)
{
    Screen screen({100, 100});
    Layer platter = backdrop({20, 20, 60, 60}, 8);
    platter.children = {box({20, 20, 10, 10}, green)};
    screen.show({platter, box({60, 60, 10, 10}, red)});
    EXPECT_EQ(screen.at(40, 40), (Rgba{0, 255, 0}));
    EXPECT_EQ(screen.at(39, 40), (Rgba{0, 0, 0}));
    EXPECT_EQ(screen.at(60, 60), (Rgba{255, 0, 0}));
}

TEST(Backdrop, IsTinted)
{
    Screen screen({40, 40});
    screen.show(backdrop({0, 0, 40, 40}, 5, {1, 0, 0, 0.5}));
    EXPECT_EQ(screen.at(20, 20), (Rgba{128, 0, 0}));
}

TEST(Backdrop, FollowsItsCorners)
{
    Screen screen({60, 60});
    Layer layer = backdrop({10, 10, 40, 40}, 5, green);
    layer.cornerRadius = 20;
    screen.show(layer);
    EXPECT_EQ(screen.at(11, 11), (Rgba{0, 0, 0}));
    EXPECT_EQ(screen.at(30, 30), (Rgba{0, 255, 0}));
}

TEST(Backdrop, SeesTheScreenFromWithinAFadedLayer)
{
    Screen screen({40, 40});
    Layer faded = Layer::withFrame({0, 0, 40, 40});
    faded.opacity = 0.5;
    faded.children = {backdrop({0, 0, 40, 40}, 4), box({30, 30, 4, 4}, red)};
    screen.show({box({0, 0, 40, 40}, green), faded});
    EXPECT_EQ(screen.at(10, 10), (Rgba{0, 255, 0}));
}

TEST(Backdrop, IsRedrawnWhenSomethingBehindItChanges)
{
    Screen screen({100, 100});
    const Layer platter = backdrop({20, 20, 60, 60}, 8);
    screen.show({box({0, 0, 50, 100}, white), platter});
    const auto damage = screen.show({box({0, 0, 50, 100}, red), platter});
    Screen fresh({100, 100});
    fresh.show({box({0, 0, 50, 100}, red), platter});
    EXPECT_EQ(screen.bytes(), fresh.bytes());
    ASSERT_EQ(damage.size(), 1u);
    EXPECT_EQ(damage.front(), (PixelRect{0, 0, 80, 100}));
}

TEST(Backdrop, StaysWhenSomethingInFrontChanges)
{
    Screen screen({100, 100});
    const Layer platter = backdrop({20, 20, 60, 60}, 8);
    screen.show({box({0, 0, 50, 100}, white), platter, box({30, 30, 5, 5}, red)});
    const auto damage = screen.show({box({0, 0, 50, 100}, white), platter, box({30, 30, 5, 5}, blue)});
    EXPECT_EQ(damage, (std::vector<PixelRect>{{30, 30, 5, 5}}));
}

TEST(Backdrop, AnAbsurdRadiusIsHeldWithinBounds)
{
    Screen screen({30, 30});
    screen.show({box({0, 0, 30, 30}, green), backdrop({5, 5, 20, 20}, 1e12)});
    EXPECT_NEAR(screen.at(15, 15).g, 255, 1);
}

}
