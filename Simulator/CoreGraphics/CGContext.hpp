// Bitmap contexts: pixels in memory that images are drawn into.
#pragma once

#include "Platform/CoreGraphics/CGContext.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <vector>

namespace Simulator {

struct CGContextObject : StandIn {
    using Root = CGContextObject;

    /// Scales the whole image to the rectangle and lays it over what is there. The origin is at the bottom left.
    void draw(const Graphics::Image& image, CGRect rect);

    std::uint8_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::size_t stride = 0;
    /// The memory, if the caller gave none.
    std::vector<std::uint8_t> storage;
};

void registerCGContext();

}
