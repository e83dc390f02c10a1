// How a kind of picture yields its pixels: row by row, no larger than asked for where the format allows it.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Image.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Simulator::Graphics {

/// No more memory than this for the pixels of one picture.
constexpr std::size_t decodedLimit = 400u << 20;

struct PixelSize {
    int width = 0;
    int height = 0;
    bool operator==(const PixelSize&) const = default;
};

/// Takes the rows of a picture from top to bottom: premultiplied, bytes in the order blue, green, red, alpha.
class RowReceiver {
public:
    virtual ~RowReceiver() = default;
    /// The exact size is below that of the rows where a reduction leaves their last pixels covered in part.
    /// False stops the decoding.
    virtual bool begin(PixelSize size, Size exact) = 0;
    virtual void row(const std::uint8_t* pixels) = 0;
};

class ImageSource {
public:
    virtual ~ImageSource() = default;

    virtual PixelSize storedSize() const = 0;
    virtual Orientation orientation() const { return Orientation::up; }
    virtual bool isDrawing() const { return false; }
    /// Every pixel covers what is behind it.
    virtual bool isOpaque() const = 0;
    virtual std::span<const std::byte> encodedBytes() const { return {}; }
    /// The natural size; that of the pixels for what has pixels.
    virtual Size naturalSize() const;

    /// May reduce, but to no less than the wanted size. False if not all rows could be delivered.
    virtual bool decode(PixelSize wanted, RowReceiver& receiver) const = 0;
};

/// Null for bytes that are not of the kind or whose header is broken or absurd.
std::shared_ptr<const ImageSource> openJpeg(std::vector<std::byte> bytes);
std::shared_ptr<const ImageSource> openPng(std::vector<std::byte> bytes);
std::shared_ptr<const ImageSource> openSvg(std::vector<std::byte> bytes);
std::shared_ptr<const ImageSource> copyPixels(const std::uint8_t* pixels, int width, int height, int stride);

/// Bytes in the order blue, green, red, alpha.
struct Pixels {
    PixelSize size;
    std::vector<std::uint8_t> bytes;

    bool isEmpty() const { return bytes.empty(); }
    int stride() const { return size.width * 4; }
    std::uint8_t* row(int y) { return bytes.data() + static_cast<std::size_t>(y) * stride(); }
    const std::uint8_t* row(int y) const { return bytes.data() + static_cast<std::size_t>(y) * stride(); }
    static Pixels blank(PixelSize size);
};

/// The `window` of the picture scaled to the full size; empty if it cannot be decoded or is too large.
Pixels scaledPixels(const ImageSource& source, PixelSize full, const PixelRect& window, bool upright);

}
