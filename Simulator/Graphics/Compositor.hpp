// Draws layer trees into the picture of a screen, and redraws only what differs from the last tree. For one thread.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Graphics/Layer.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Simulator::Graphics {

class FontCatalogue;

/// Premultiplied pixels, bytes in the order blue, green, red, alpha. Valid until the next frame.
struct FrameView {
    const std::uint8_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;
};

enum class Backing { opaqueBlack, transparent };

class Compositor {
public:
    /// The size is held within 1 and 16384 pixels a side.
    Compositor(FontCatalogue& catalogue, Size points, double scale, Backing backing = Backing::opaqueBlack);
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    /// The layer's parent coordinates are the screen's points. Returns what was redrawn: disjoint, in pixels.
    std::vector<PixelRect> render(const Layer& root);
    /// The next frame is drawn in full.
    void invalidate();

    FrameView pixels() const;
    std::vector<std::byte> encodePng() const;
    std::vector<std::byte> encodePng(const PixelRect& part) const;
    /// A copy of the frame.
    Image::Pointer image() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// A layer on a transparent ground of the given size, for pictures drawn off the screen. Null for an empty size.
Image::Pointer rasterize(FontCatalogue& catalogue, const Layer& layer, Size points, double scale);

}
