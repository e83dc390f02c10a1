// Pictures to measure with: photograph-like JPEGs, the same bytes on every run; and the bare decoder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Benchmarks {

/// Soft areas of colour with fine noise, as a JPEG of quality 85.
std::vector<std::byte> photographJpeg(int width, int height);

/// Decodes at an eighth of the size into `pixels` (grown as needed), by libjpeg alone.
void decodeAtAnEighth(const std::vector<std::byte>& jpeg, std::vector<std::uint8_t>& pixels);

}
