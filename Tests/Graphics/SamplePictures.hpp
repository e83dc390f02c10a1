// Pictures made for a test, pixel by pixel.
#pragma once

#include "Simulator/Graphics/Image.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace Simulator::Graphics::Samples {

struct Rgba {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    std::uint8_t a = 255;
    bool operator==(const Rgba&) const = default;
};

using Paint = std::function<Rgba(int x, int y)>;

struct JpegOptions {
    bool isProgressive = false;
    bool isGrey = false;
    bool hasFourInks = false;
    int orientation = 0;
};

std::vector<std::byte> jpeg(int width, int height, const Paint& paint, const JpegOptions& options = {});

struct PngOptions {
    bool isInterlaced = false;
    int bitDepth = 8;
};

/// The colours are not premultiplied.
std::vector<std::byte> png(int width, int height, const Paint& paint, const PngOptions& options = {});

Paint plain(Rgba color);
/// Red, green, blue and white quarters, from the top left by rows.
Paint quarters(int width, int height);

/// Pixels as the platform holds them: red first, premultiplied.
struct Canvas {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;

    Canvas(int canvasWidth, int canvasHeight);
    PixelBuffer buffer();
    Rgba at(int x, int y) const;
    bool isBlank() const;
};

/// What the picture looks like at a size.
Canvas drawn(const Image& image, int width, int height, bool upright = true);

}
