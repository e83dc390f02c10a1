// The bare work that template icons make: each is read, written as a PNG and read again.
#pragma once

#include <cstddef>
#include <vector>

namespace Benchmarks {

/// By libpng alone, in memory; answers the number of bytes of what was written.
std::size_t passThroughPng(const std::vector<std::byte>& file);

}
