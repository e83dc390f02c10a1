// A picture: encoded bytes (JPEG, PNG, SVG) or pixels. Its size is known from the header; it is decoded when and as
// small as it is drawn. Immutable; bad data gives no image, or one that draws nothing.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

namespace Simulator::Graphics {

class ImageSource;

/// Premultiplied pixels, bytes in the order red, green, blue, alpha.
struct PixelBuffer {
    std::uint8_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;
};

/// How the stored rows have to be turned to stand upright; the numbers are those of the camera's tag.
enum class Orientation { up = 1, upMirrored, down, downMirrored, leftMirrored, right, rightMirrored, left };

class Image {
public:
    using Pointer = std::shared_ptr<const Image>;

    /// JPEG or PNG. Null for anything else, for a broken header, no pixels or an absurd size.
    static Pointer fromBytes(std::vector<std::byte> bytes);
    static Pointer fromFile(const std::filesystem::path& path);
    /// A drawing that is sharp at every size. Without a size it has its own.
    static Pointer fromSvg(std::vector<std::byte> bytes, Size size = {});
    /// Copies premultiplied pixels. Null for no pixels or a stride below the width.
    static Pointer fromPixels(const std::uint8_t* pixels, int width, int height, int stride);

    Image(std::shared_ptr<const ImageSource> source, Size size, std::uint64_t identity);

    /// The same picture with another natural size.
    Pointer resized(Size size) const;

    /// In pixels; upright (`size`) and as stored. A drawing's is in the points that it was made for.
    Size size() const { return m_size; }
    Size storedSize() const;
    Orientation orientation() const;
    bool isDrawing() const;
    /// The file's content; empty for an image made from pixels.
    std::span<const std::byte> encodedBytes() const;

    /// Fills the whole buffer with the whole picture, reduced by averaging areas. False (and a transparent buffer) if
    /// the data cannot be decoded. `upright` false ignores the orientation.
    bool drawInto(const PixelBuffer& buffer, bool upright = true) const;

    /// Upright pixels as a PNG, exact; empty if the data cannot be decoded.
    std::vector<std::byte> encodePng() const;

    std::uint64_t identity() const { return m_identity; }
    const ImageSource& source() const { return *m_source; }

private:
    std::shared_ptr<const ImageSource> m_source;
    Size m_size;
    std::uint64_t m_identity;
};

}
