// Pictures of the lock screen: not what they look like, but that all of it is drawn.
#include "ShellTest.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/UIKit/ScreenRenderer.hpp"

#include <cstdlib>
#include <fstream>
#include <set>

using namespace Simulator;

namespace {

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;

    /// How many different pixels a part of the screen has, at one pixel per point.
    std::size_t colours(const CGRect& part) const
    {
        std::set<std::uint32_t> found;
        for (int y = static_cast<int>(part.origin.y); y < part.origin.y + part.size.height; ++y) {
            for (int x = static_cast<int>(part.origin.x); x < part.origin.x + part.size.width; ++x) {
                std::uint32_t pixel = 0;
                std::memcpy(&pixel, &pixels[4 * (static_cast<std::size_t>(y) * width + x)], 4);
                found.insert(pixel);
            }
        }
        return found.size();
    }
};

class Pictures : public ShellTest {
protected:
    Pictures() { screenSettings().scale = 1; }

    Picture take()
    {
        const auto png = renderer.capturePng(shell().window());
        const auto image = Graphics::Image::fromBytes(png);
        EXPECT_TRUE(image);
        Picture picture{static_cast<int>(image->size().width), static_cast<int>(image->size().height), {}};
        picture.pixels.resize(std::size_t{4} * picture.width * picture.height);
        EXPECT_TRUE(image->drawInto({picture.pixels.data(), picture.width, picture.height, 4 * picture.width}));
        return picture;
    }

    ScreenRenderer renderer;
};

}

TEST_F(Pictures, HaveTheSizeOfTheScreen)
{
    start();
    const Picture picture = take();
    EXPECT_EQ(picture.width, 375);
    EXPECT_EQ(picture.height, 812);
}

TEST_F(Pictures, ShowClockNotificationsAndQuickActions)
{
    start();
    const Picture picture = take();
    const std::size_t ground = picture.colours(CGRectMake(0, 230, 375, 4));
    for (const char* part :
        {"stock.time", "stock.subtitle", "stock.notification", "stock.flashlight", "stock.hint", "stock.statusBar"})
        EXPECT_GT(picture.colours(place(part)), ground) << part;
}

TEST_F(Pictures, AreBlackInTheDark)
{
    start();
    shell().lock();
    EXPECT_EQ(take().colours(CGRectMake(0, 0, 375, 812)), 1u);
}

TEST_F(Pictures, ShowTheLockScreenDimmedWhereItStaysVisible)
{
    DeviceState::shared().installed = {"LastLook"};
    start();
    shell().lock();
    EXPECT_GT(take().colours(CGRectMake(0, 0, 375, 812)), 10u);
}
