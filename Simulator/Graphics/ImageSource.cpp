// Pixels in memory as a picture, and the scaling and turning that all kinds share.
#include "Simulator/Graphics/ImageSource.hpp"

#include "Simulator/Graphics/Resampler.hpp"

#include <algorithm>
#include <cstring>

namespace Simulator::Graphics {

namespace {

class PixelSource : public ImageSource {
public:
    explicit PixelSource(Pixels pixels)
        : m_pixels(std::move(pixels))
    {
        m_isOpaque = true;
        for (std::size_t i = 3; i < m_pixels.bytes.size() && m_isOpaque; i += 4)
            m_isOpaque = m_pixels.bytes[i] == 255;
    }

    PixelSize storedSize() const override { return m_pixels.size; }
    bool isOpaque() const override { return m_isOpaque; }

    bool decode(PixelSize, RowReceiver& receiver) const override
    {
        const PixelSize size = m_pixels.size;
        if (!receiver.begin(size, {double(size.width), double(size.height)}))
            return false;
        for (int y = 0; y < size.height; ++y)
            receiver.row(m_pixels.row(y));
        return true;
    }

private:
    Pixels m_pixels;
    bool m_isOpaque = false;
};

bool swapsSides(Orientation orientation)
{
    return orientation >= Orientation::leftMirrored;
}

/// Which stored pixel an upright one comes from: x and y from the left or right, top or bottom edge, maybe exchanged.
struct Turn {
    bool swaps = false;
    bool flipsX = false;
    bool flipsY = false;
};

Turn turnFor(Orientation orientation)
{
    switch (orientation) {
    case Orientation::up:
        return {};
    case Orientation::upMirrored:
        return {false, true, false};
    case Orientation::down:
        return {false, true, true};
    case Orientation::downMirrored:
        return {false, false, true};
    case Orientation::leftMirrored:
        return {true, false, false};
    case Orientation::right:
        return {true, false, true};
    case Orientation::rightMirrored:
        return {true, true, true};
    case Orientation::left:
        return {true, true, false};
    }
    return {};
}

/// The stored window that holds an upright window's pixels. Sizes are those of the upright picture.
PixelRect storedWindow(const Turn& turn, PixelSize full, const PixelRect& window)
{
    PixelRect stored = window;
    if (turn.swaps) {
        stored = {window.y, window.x, window.height, window.width};
        std::swap(full.width, full.height);
    }
    if (turn.flipsX)
        stored.x = full.width - stored.right();
    if (turn.flipsY)
        stored.y = full.height - stored.bottom();
    return stored;
}

Pixels turned(const Pixels& stored, const Turn& turn)
{
    PixelSize size = stored.size;
    if (turn.swaps)
        std::swap(size.width, size.height);
    Pixels upright = Pixels::blank(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            int fromX = turn.swaps ? y : x;
            int fromY = turn.swaps ? x : y;
            if (turn.flipsX)
                fromX = stored.size.width - 1 - fromX;
            if (turn.flipsY)
                fromY = stored.size.height - 1 - fromY;
            std::memcpy(upright.row(y) + x * 4, stored.row(fromY) + fromX * 4, 4);
        }
    }
    return upright;
}

bool isWithinLimit(const PixelRect& window)
{
    return !window.isEmpty() && std::size_t(window.width) * std::size_t(window.height) * 4 <= decodedLimit;
}

}

Size ImageSource::naturalSize() const
{
    PixelSize size = storedSize();
    if (swapsSides(orientation()))
        std::swap(size.width, size.height);
    return {double(size.width), double(size.height)};
}

Pixels Pixels::blank(PixelSize size)
{
    return {size, std::vector<std::uint8_t>(std::size_t(size.width) * std::size_t(size.height) * 4)};
}

Pixels scaledPixels(const ImageSource& source, PixelSize full, const PixelRect& window, bool upright)
{
    if (!isWithinLimit(window) || !PixelRect{0, 0, full.width, full.height}.contains(window))
        return {};
    const Orientation orientation = upright ? source.orientation() : Orientation::up;
    const Turn turn = turnFor(orientation);
    const PixelRect stored = storedWindow(turn, full, window);
    if (turn.swaps)
        std::swap(full.width, full.height);
    Pixels pixels = Pixels::blank({stored.width, stored.height});
    Resampler resampler(full, stored, pixels);
    if (!source.decode(full, resampler))
        return {};
    return orientation == Orientation::up ? std::move(pixels) : turned(pixels, turn);
}

std::shared_ptr<const ImageSource> copyPixels(const std::uint8_t* pixels, int width, int height, int stride)
{
    if (!pixels || width <= 0 || height <= 0 || stride / 4 < width || !isWithinLimit({0, 0, width, height}))
        return nullptr;
    Pixels copy = Pixels::blank({width, height});
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* from = pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(stride);
        std::uint8_t* to = copy.row(y);
        for (int x = 0; x < width; ++x, from += 4, to += 4) {
            // No channel exceeds the alpha of a premultiplied pixel.
            to[0] = std::min(from[2], from[3]);
            to[1] = std::min(from[1], from[3]);
            to[2] = std::min(from[0], from[3]);
            to[3] = from[3];
        }
    }
    return std::make_shared<const PixelSource>(std::move(copy));
}

}
