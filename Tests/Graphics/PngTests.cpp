// Pictures without loss: transparency, depths, broken files.
#include "SampleFonts.hpp"
#include "SamplePictures.hpp"

#include <gtest/gtest.h>

#include <numeric>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

std::uint32_t checksum(std::span<const std::byte> bytes)
{
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::byte byte : bytes) {
        sum ^= std::to_integer<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

void setNumber(Bytes& bytes, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[offset + i] = std::byte(value >> (24 - 8 * i) & 0xFF);
}

/// With a header that is right but for its claim.
Bytes withSize(Bytes bytes, std::uint32_t width, std::uint32_t height)
{
    setNumber(bytes, 16, width);
    setNumber(bytes, 20, height);
    setNumber(bytes, 29, checksum(std::span(bytes).subspan(12, 17)));
    return bytes;
}

}

TEST(Png, KnowsItsSizeAndPremultipliesItsColours)
{
    const auto image = Image::fromBytes(png(5, 3, plain({200, 100, 50, 128})));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{5, 3}));
    EXPECT_EQ(drawn(*image, 5, 3).at(4, 2), (Rgba{100, 50, 25, 128}));
}

TEST(Png, KeepsPixelsExactly)
{
    const auto paint = [](int x, int y) {
        return Rgba{static_cast<std::uint8_t>(x * 16), static_cast<std::uint8_t>(y * 16), 77};
    };
    const auto image = Image::fromBytes(png(16, 16, paint));
    const Canvas canvas = drawn(*image, 16, 16);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(canvas.at(i, 15 - i), paint(i, 15 - i));
}

TEST(Png, ReadsInterlacedAndDeepFiles)
{
    const auto paint = quarters(30, 30);
    for (const PngOptions& options : {PngOptions{true, 8}, PngOptions{false, 16}, PngOptions{true, 16}}) {
        const Canvas canvas = drawn(*Image::fromBytes(png(30, 30, paint, options)), 30, 30);
        for (const int i : {0, 14, 15, 29})
            EXPECT_EQ(canvas.at(i, 20), paint(i, 20));
    }
}

TEST(Png, TransparentPixelsDoNotColourAnAverage)
{
    const auto image = Image::fromBytes(png(2, 1, [](int x, int) {
        return x == 0 ? Rgba{255, 0, 0, 255} : Rgba{0, 255, 0, 0};
    }));
    EXPECT_EQ(drawn(*image, 1, 1).at(0, 0), (Rgba{128, 0, 0, 128}));
}

TEST(Png, CutShortOrDamagedDrawsNothing)
{
    const auto whole = png(64, 64, [](int x, int y) { return Rgba{static_cast<std::uint8_t>(x * y), 5, 9}; });
    auto damaged = whole;
    damaged[whole.size() / 2] ^= std::byte{1};
    const Bytes half(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() / 2));
    for (const auto& bytes : {damaged, half}) {
        const auto image = Image::fromBytes(bytes);
        ASSERT_TRUE(image);
        Canvas canvas(8, 8);
        EXPECT_FALSE(image->drawInto(canvas.buffer()));
        EXPECT_TRUE(canvas.isBlank());
    }
}

TEST(Png, SurvivesEveryCutAndEveryFlippedByteOfASmallFile)
{
    const auto whole = png(9, 9, quarters(9, 9), {.isInterlaced = true});
    Canvas canvas(4, 4);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        auto flipped = whole;
        flipped[i] ^= std::byte{0x10};
        const auto image = Image::fromBytes(flipped);
        // Nothing but the end of the file is without influence.
        const bool isDrawn = image && image->drawInto(canvas.buffer());
        EXPECT_TRUE(!isDrawn || i >= whole.size() - 12) << i;
        const auto cut = Image::fromBytes(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i)));
        EXPECT_TRUE(!cut || !cut->drawInto(canvas.buffer()) || i >= whole.size() - 12) << i;
    }
}

TEST(Png, AbsurdSizesAreRefused)
{
    const auto small = png(4, 4, plain({1, 2, 3}));
    EXPECT_TRUE(Image::fromBytes(withSize(small, 4, 4)));
    EXPECT_FALSE(Image::fromBytes(withSize(small, 0, 4)));
    EXPECT_FALSE(Image::fromBytes(withSize(small, 65'000, 65'000)));
    EXPECT_FALSE(Image::fromBytes(withSize(small, 2'000'000'000, 1)));
    const auto lying = Image::fromBytes(withSize(small, 9'000, 9'000));
    ASSERT_TRUE(lying);
    Canvas canvas(4, 4);
    EXPECT_FALSE(lying->drawInto(canvas.buffer()));
}

}
