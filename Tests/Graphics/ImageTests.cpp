// Pictures from pixels, and what all kinds of pictures share.
#include "SampleFonts.hpp"
#include "SamplePictures.hpp"

#include <gtest/gtest.h>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

Image::Pointer fromCanvas(Canvas& canvas)
{
    return Image::fromPixels(canvas.bytes.data(), canvas.width, canvas.height, canvas.width * 4);
}

/// Every alpha with every premultiplied component that it allows.
Canvas everyPixel()
{
    Canvas canvas(256, 256);
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int component = 0; component < 256; ++component) {
            std::uint8_t* pixel = canvas.bytes.data() + (alpha * 256 + component) * 4;
            const auto value = static_cast<std::uint8_t>(std::min(component, alpha));
            pixel[0] = value;
            pixel[1] = static_cast<std::uint8_t>(alpha - value);
            pixel[2] = static_cast<std::uint8_t>(alpha);
            pixel[3] = static_cast<std::uint8_t>(alpha);
        }
    }
    return canvas;
}

}

TEST(Image, RefusesWhatIsNoPicture)
{
    EXPECT_FALSE(Image::fromBytes({}));
    EXPECT_FALSE(Image::fromBytes(Bytes(3, std::byte{0xFF})));
    EXPECT_FALSE(Image::fromBytes(Bytes(10'000, std::byte{0x42})));
    EXPECT_FALSE(Image::fromFile("/nowhere/picture.jpg"));
    EXPECT_FALSE(Image::fromFile("/"));
    EXPECT_FALSE(Image::fromSvg({}));
    EXPECT_FALSE(Image::fromSvg(Bytes(100, std::byte{'<'})));
}

TEST(Image, ReadsAFile)
{
    TemporaryFolder folder;
    const auto bytes = png(3, 2, plain({1, 2, 3}));
    const auto image = Image::fromFile(folder.write("picture", bytes));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{3, 2}));
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), image->encodedBytes().begin(), image->encodedBytes().end()));
}

TEST(Image, RefusesPixelsThatAreNone)
{
    const std::uint8_t pixels[16] = {};
    EXPECT_FALSE(Image::fromPixels(nullptr, 2, 2, 8));
    EXPECT_FALSE(Image::fromPixels(pixels, 0, 2, 8));
    EXPECT_FALSE(Image::fromPixels(pixels, 2, -1, 8));
    EXPECT_FALSE(Image::fromPixels(pixels, 2, 2, 7));
    EXPECT_FALSE(Image::fromPixels(pixels, 1 << 20, 1 << 20, 1 << 22));
}

TEST(Image, ReturnsItsPixelsAsTheyAre)
{
    Canvas canvas = everyPixel();
    const auto image = fromCanvas(canvas);
    EXPECT_EQ(drawn(*image, 256, 256).bytes, canvas.bytes);
    EXPECT_TRUE(image->encodedBytes().empty());
}

TEST(Image, KeepsEveryPixelThroughAnEncodedFile)
{
    Canvas canvas = everyPixel();
    const auto decoded = Image::fromBytes(fromCanvas(canvas)->encodePng());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(drawn(*decoded, 256, 256).bytes, canvas.bytes);
}

TEST(Image, AveragesAreasWhenReduced)
{
    Canvas canvas(4, 2);
    for (int i = 0; i < 8; ++i)
        std::fill_n(canvas.bytes.begin() + i * 4, 4, static_cast<std::uint8_t>(i % 4 < 2 ? 10 * i : 200));
    for (int i = 0; i < 8; ++i)
        canvas.bytes[static_cast<std::size_t>(i * 4 + 3)] = 255;
    // 0 10 200 200 over 40 50 200 200
    const Canvas half = drawn(*fromCanvas(canvas), 2, 1);
    EXPECT_EQ(half.at(0, 0), (Rgba{25, 25, 25, 255}));
    EXPECT_EQ(half.at(1, 0), (Rgba{200, 200, 200, 255}));
}

TEST(Image, WeighsPixelsThatLieInTwoAreas)
{
    Canvas canvas(3, 1);
    const std::uint8_t values[] = {0, 90, 240};
    for (int i = 0; i < 3; ++i) {
        std::fill_n(canvas.bytes.begin() + i * 4, 3, values[i]);
        canvas.bytes[static_cast<std::size_t>(i * 4 + 3)] = 255;
    }
    const Canvas half = drawn(*fromCanvas(canvas), 2, 1);
    EXPECT_EQ(half.at(0, 0).r, 30);
    EXPECT_EQ(half.at(1, 0).r, 190);
}

TEST(Image, BlendsNeighboursWhenEnlarged)
{
    Canvas canvas(2, 1);
    std::fill_n(canvas.bytes.begin(), 4, std::uint8_t{0});
    std::fill_n(canvas.bytes.begin() + 4, 4, std::uint8_t{200});
    const Canvas wide = drawn(*fromCanvas(canvas), 4, 3);
    for (int y = 0; y < 3; ++y) {
        EXPECT_EQ(wide.at(0, y).r, 0);
        EXPECT_EQ(wide.at(1, y).r, 50);
        EXPECT_EQ(wide.at(2, y).r, 150);
        EXPECT_EQ(wide.at(3, y).r, 200);
    }
}

TEST(Image, LeavesABufferWithoutRoomAlone)
{
    Canvas canvas(2, 2);
    const auto image = fromCanvas(canvas);
    std::uint8_t untouched[4] = {1, 2, 3, 4};
    EXPECT_FALSE(image->drawInto({untouched, 0, 1, 4}));
    EXPECT_FALSE(image->drawInto({untouched, 1, 1, 3}));
    EXPECT_FALSE(image->drawInto({nullptr, 1, 1, 4}));
    EXPECT_EQ(untouched[0], 1);
}

TEST(Image, LeavesTheGapsBetweenABuffersRowsAlone)
{
    const auto image = Image::fromBytes(png(2, 2, plain({9, 9, 9})));
    std::vector<std::uint8_t> bytes(24, 7);
    EXPECT_TRUE(image->drawInto({bytes.data(), 2, 2, 12}));
    EXPECT_EQ(bytes[7], 255);
    EXPECT_EQ(bytes[8], 7);
    EXPECT_EQ(bytes[12], 9);
    EXPECT_EQ(bytes[20], 7);
}

TEST(Image, ADrawingIsSharpAtEverySize)
{
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                            "<rect width='5' height='10' fill='#f00'/></svg>";
    const auto* data = reinterpret_cast<const std::byte*>(svg.data());
    const auto image = Image::fromSvg({data, data + svg.size()});
    ASSERT_TRUE(image);
    EXPECT_TRUE(image->isDrawing());
    EXPECT_EQ(image->size(), (Size{10, 10}));
    const Canvas large = drawn(*image, 100, 100);
    EXPECT_EQ(large.at(49, 50), (Rgba{255, 0, 0, 255}));
    EXPECT_EQ(large.at(50, 50), (Rgba{0, 0, 0, 0}));
}

}
