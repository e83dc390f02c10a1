// Pixels as a PNG file.
#pragma once

#include "Simulator/Graphics/Compositor.hpp"

#include <cstddef>
#include <vector>

namespace Simulator::Graphics {

/// Without an alpha channel if opaque; empty if it cannot be encoded.
std::vector<std::byte> encodePng(const FrameView& pixels, bool isOpaque);

}
