// A font's bytes where they are not all in memory yet.
#pragma once

#include <cstddef>
#include <functional>
#include <span>

namespace Simulator::Graphics {

struct FontParts {
    std::size_t size = 0;
    /// Fills the part with the bytes from an offset on; answers how many there were.
    std::function<std::size_t(std::size_t offset, std::span<std::byte> part)> copy;
};

}
