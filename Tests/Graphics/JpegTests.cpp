// Photos: size and orientation from the header, reduced decoding, broken files.
#include "SampleFonts.hpp"
#include "SamplePictures.hpp"

#include <gtest/gtest.h>

#include <array>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

void expectNear(const Rgba& color, const Rgba& expected)
{
    EXPECT_NEAR(color.r, expected.r, 4);
    EXPECT_NEAR(color.g, expected.g, 4);
    EXPECT_NEAR(color.b, expected.b, 4);
    EXPECT_EQ(color.a, expected.a);
}

/// The colours of the four quarters, by rows.
std::array<Rgba, 4> quartersOf(const Image& image, bool upright = true)
{
    const Canvas canvas = drawn(image, 40, 40, upright);
    return {canvas.at(10, 10), canvas.at(30, 10), canvas.at(10, 30), canvas.at(30, 30)};
}

Bytes withSize(Bytes bytes, int width, int height)
{
    for (std::size_t i = 0; i + 9 < bytes.size(); ++i) {
        const bool isFrame = bytes[i] == std::byte{0xFF} && bytes[i + 1] == std::byte{0xC0};
        if (!isFrame)
            continue;
        bytes[i + 5] = std::byte(height >> 8);
        bytes[i + 6] = std::byte(height & 0xFF);
        bytes[i + 7] = std::byte(width >> 8);
        bytes[i + 8] = std::byte(width & 0xFF);
        break;
    }
    return bytes;
}

constexpr Rgba r{255, 0, 0}, g{0, 255, 0}, b{0, 0, 255}, w{255, 255, 255};

}

TEST(Jpeg, KnowsItsSizeAndKeepsItsBytes)
{
    const auto bytes = jpeg(37, 21, plain({10, 20, 30}));
    const auto image = Image::fromBytes(bytes);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{37, 21}));
    EXPECT_EQ(image->orientation(), Orientation::up);
    EXPECT_EQ(Bytes(image->encodedBytes().begin(), image->encodedBytes().end()), bytes);
}

TEST(Jpeg, ReducesToTheAverageColour)
{
    const auto image = Image::fromBytes(jpeg(160, 80, [](int x, int) { return x < 80 ? Rgba{200, 0, 40} : Rgba{}; }));
    expectNear(drawn(*image, 1, 1).at(0, 0), {100, 0, 20});
}

TEST(Jpeg, ReducesEvenlyWhereItsSizeIsNoMultipleOfTheBlocks)
{
    // The last column of blocks is covered by one column of pixels only.
    const auto image = Image::fromBytes(jpeg(81, 81, [](int x, int) { return x < 80 ? Rgba{0, 0, 0} : w; }));
    EXPECT_NEAR(drawn(*image, 1, 1).at(0, 0).g, 255 / 81, 2);
}

TEST(Jpeg, DrawsTheSameAtFullSizeAndReducedTwice)
{
    const auto paint = [](int x, int y) {
        return Rgba{static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), static_cast<std::uint8_t>(255 - x)};
    };
    const auto image = Image::fromBytes(jpeg(256, 256, paint));
    const Canvas full = drawn(*image, 256, 256);
    const Canvas eighth = drawn(*image, 32, 32);
    for (int i = 0; i < 32; ++i)
        expectNear(eighth.at(i, 31 - i), full.at(i * 8 + 4, (31 - i) * 8 + 4));
}

TEST(Jpeg, StandsUprightInEveryOrientation)
{
    const std::array<std::array<Rgba, 4>, 8> expected = {{{r, g, b, w}, {g, r, w, b}, {w, b, g, r}, {b, w, r, g},
        {r, b, g, w}, {b, r, w, g}, {w, g, b, r}, {g, w, r, b}}};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const auto image = Image::fromBytes(jpeg(64, 32, quarters(64, 32), {.orientation = orientation}));
        ASSERT_TRUE(image);
        EXPECT_EQ(static_cast<int>(image->orientation()), orientation);
        EXPECT_EQ(image->size(), orientation < 5 ? (Size{64, 32}) : (Size{32, 64}));
        EXPECT_EQ(image->storedSize(), (Size{64, 32}));
        const auto shown = quartersOf(*image);
        const auto stored = quartersOf(*image, false);
        for (std::size_t i = 0; i < 4; ++i) {
            SCOPED_TRACE(orientation);
            expectNear(shown[i], expected[static_cast<std::size_t>(orientation - 1)][i]);
            expectNear(stored[i], expected[0][i]);
        }
    }
}

TEST(Jpeg, TakesAnUnknownOrientationForUpright)
{
    EXPECT_EQ(Image::fromBytes(jpeg(8, 8, plain({}), {.orientation = 9}))->orientation(), Orientation::up);
}

TEST(Jpeg, ReadsGreyProgressiveAndFourInkFiles)
{
    expectNear(
        drawn(*Image::fromBytes(jpeg(16, 16, plain({90, 90, 90}), {.isGrey = true})), 16, 16).at(5, 5), {90, 90, 90});
    expectNear(drawn(*Image::fromBytes(jpeg(16, 16, plain({90, 50, 10}), {.isProgressive = true})), 2, 2).at(1, 1),
        {90, 50, 10});
    expectNear(drawn(*Image::fromBytes(jpeg(16, 16, plain({90, 50, 10}), {.hasFourInks = true})), 16, 16).at(1, 1),
        {90, 50, 10});
}

TEST(Jpeg, CutShortDrawsNothing)
{
    const auto whole = jpeg(200, 200, quarters(200, 200));
    for (const std::size_t length : {whole.size() - 300, whole.size() / 2, whole.size() / 3}) {
        const auto image = Image::fromBytes(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        if (!image)
            continue;
        Canvas canvas(10, 10);
        EXPECT_FALSE(image->drawInto(canvas.buffer())) << length;
        EXPECT_TRUE(canvas.isBlank()) << length;
        EXPECT_TRUE(image->encodePng().empty()) << length;
    }
}

TEST(Jpeg, DrawsWithoutItsEndMarker)
{
    auto bytes = jpeg(64, 64, plain({200, 100, 50}));
    bytes.resize(bytes.size() - 2);
    expectNear(drawn(*Image::fromBytes(bytes), 4, 4).at(2, 2), {200, 100, 50});
}

TEST(Jpeg, SurvivesEveryCutAndEveryFlippedByteOfASmallFile)
{
    const auto whole = jpeg(24, 24, quarters(24, 24));
    Canvas canvas(6, 6);
    int decoded = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        auto flipped = whole;
        flipped[i] ^= std::byte{0x55};
        for (const auto& bytes : {flipped, Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i))}) {
            if (const auto image = Image::fromBytes(bytes))
                decoded += image->drawInto(canvas.buffer());
        }
    }
    EXPECT_GT(decoded, 0);
}

TEST(Jpeg, AHeaderThatLiesAboutTheSizeDrawsNothing)
{
    const auto small = jpeg(16, 16, plain({1, 2, 3}));
    Canvas canvas(4, 4);
    const auto larger = Image::fromBytes(withSize(small, 9'000, 9'000));
    ASSERT_TRUE(larger);
    EXPECT_FALSE(larger->drawInto(canvas.buffer()));
    EXPECT_TRUE(canvas.isBlank());
    EXPECT_FALSE(Image::fromBytes(withSize(small, 65'000, 65'000)));
    EXPECT_FALSE(Image::fromBytes(withSize(small, 0, 16)));
}

TEST(Jpeg, DrawsAVeryLargePictureSmall)
{
    const auto image = Image::fromBytes(jpeg(10'000, 6'000, plain({120, 60, 30})));
    const Canvas canvas = drawn(*image, 25, 54);
    expectNear(canvas.at(0, 0), {120, 60, 30});
    expectNear(canvas.at(24, 53), {120, 60, 30});
}

}
