// Gaussian blur, as three running averages.
#pragma once

#include <cstdint>

namespace Simulator::Graphics {

/// How far a pixel's colour spreads.
int blurExtent(double sigma);
/// One byte a pixel, or four.
enum class BlurKind { alpha, color };
/// Blurs in place; the edge pixels count as going on beyond the edge.
void blur(std::uint8_t* pixels, int width, int height, int stride, BlurKind kind, double sigma);

}
