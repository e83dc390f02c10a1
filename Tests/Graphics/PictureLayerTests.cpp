// Layers that show pictures.
#include "Screen.hpp"

#include <gtest/gtest.h>

#include <numbers>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

constexpr Rgba black{0, 0, 0}, fullRed{255, 0, 0}, fullGreen{0, 255, 0}, fullBlue{0, 0, 255};

Image::Pointer quarteredPicture(int width = 20, int height = 20)
{
    return Image::fromBytes(png(width, height, quarters(width, height)));
}

}

TEST(PictureLayer, ScalesToFillItsBounds)
{
    Screen screen({60, 60});
    screen.show(picture({10, 10, 40, 20}, quarteredPicture()));
    EXPECT_EQ(screen.lit(), (PixelRect{10, 10, 40, 20}));
    EXPECT_EQ(screen.at(12, 12), fullRed);
    EXPECT_EQ(screen.at(47, 12), fullGreen);
    EXPECT_EQ(screen.at(12, 27), fullBlue);
}

TEST(PictureLayer, FitsIntoItsBounds)
{
    Screen screen({60, 60});
    screen.show(picture({10, 10, 40, 20}, quarteredPicture(), ContentMode::aspectFit));
    EXPECT_EQ(screen.lit(), (PixelRect{20, 10, 20, 20}));
}

TEST(PictureLayer, FillsItsBoundsAndBeyond)
{
    Screen screen({60, 60});
    Layer layer = picture({10, 20, 40, 20}, quarteredPicture(), ContentMode::aspectFill);
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{10, 10, 40, 40}));
    layer.clipsToBounds = true;
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{10, 20, 40, 20}));
    EXPECT_EQ(screen.at(12, 22), fullRed);
    EXPECT_EQ(screen.at(12, 37), fullBlue);
}

TEST(PictureLayer, CentresAtItsOwnSize)
{
    Screen screen({60, 60}, 2);
    Layer layer = picture({10, 10, 40, 40}, quarteredPicture(), ContentMode::center);
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{40, 40, 40, 40}));
    std::get<ImageContent>(layer.content).scale = 2;
    screen.show(layer);
    EXPECT_EQ(screen.lit(), (PixelRect{50, 50, 20, 20}));
}

TEST(PictureLayer, ATemplateIsFilledWithItsTint)
{
    Screen screen({20, 20});
    const auto shape = Image::fromBytes(png(20, 20, [](int x, int) {
        return x < 10 ? Rgba{10, 20, 30, 255} : Rgba{255, 255, 255, 0};
    }));
    Layer layer = picture({0, 0, 20, 20}, shape);
    std::get<ImageContent>(layer.content).tint = green;
    screen.show(layer);
    EXPECT_EQ(screen.at(5, 5), fullGreen);
    EXPECT_EQ(screen.at(15, 5), black);
}

TEST(PictureLayer, TurnsAndMirrorsWithItsLayer)
{
    Screen screen({40, 40});
    Layer layer = picture({10, 10, 20, 20}, quarteredPicture());
    layer.transform = AffineTransform::rotation(std::numbers::pi / 2);
    screen.show(layer);
    EXPECT_EQ(screen.at(13, 13), fullBlue);
    EXPECT_EQ(screen.at(26, 13), fullRed);
    layer.transform = AffineTransform::scale(-1, 1);
    screen.show(layer);
    EXPECT_EQ(screen.at(13, 13), fullGreen);
    EXPECT_EQ(screen.at(26, 13), fullRed);
}

TEST(PictureLayer, FadesOverWhatIsBehind)
{
    Screen screen({20, 20});
    Layer layer = picture({0, 0, 20, 20}, quarteredPicture());
    layer.opacity = 0.5;
    screen.show({box({0, 0, 20, 20}, blue), layer});
    EXPECT_EQ(screen.at(2, 2), (Rgba{128, 0, 127}));
}

TEST(PictureLayer, ABrokenPictureLetsTheBackgroundShow)
{
    auto bytes = jpeg(50, 50, plain({255, 255, 255}));
    bytes.resize(bytes.size() - 20);
    const auto image = Image::fromBytes(bytes);
    ASSERT_TRUE(image);
    Screen screen({20, 20});
    screen.show({box({0, 0, 20, 20}, red), picture({0, 0, 20, 20}, image), picture({0, 0, 20, 20}, nullptr)});
    EXPECT_EQ(screen.at(10, 10), fullRed);
}

TEST(PictureLayer, ShowsItsPartOfAVastFrame)
{
    Screen screen({20, 20});
    screen.show(picture({-100'000, -50'000, 200'000, 100'000}, quarteredPicture()));
    EXPECT_EQ(screen.at(5, 15).b > 100, true);
    EXPECT_EQ(screen.lit(), (PixelRect{0, 0, 20, 20}));
}

TEST(PictureLayer, AThinPictureStillShows)
{
    Screen screen({20, 20});
    screen.show(picture({5, 5, 10, 0.2}, Image::fromBytes(png(10, 10, plain({255, 255, 255})))));
    EXPECT_EQ(screen.lit(), (PixelRect{5, 5, 10, 1}));
}

}
