// Bitmap contexts and bitmap images.
#pragma once

#include "Platform/CoreGraphics/CGColor.hpp"

using CGContextRef = struct CGContext*;
using CGImageRef = struct CGImage*;

/// How a bitmap lays out a pixel: alpha premultiplied and last, the most significant byte first.
inline constexpr std::uint32_t kCGImageAlphaPremultipliedLast = 1;
inline constexpr std::uint32_t kCGBitmapByteOrder32Big = 4 << 12;

extern "C" {
/// A context that draws into `data` (or memory of its own if null); null if the parameters make no bitmap.
CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height, std::size_t bitsPerComponent,
    std::size_t bytesPerRow, CGColorSpaceRef space, std::uint32_t bitmapInfo);
void CGContextDrawImage(CGContextRef, CGRect rect, CGImageRef);
void CGContextRelease(CGContextRef);
std::size_t CGImageGetWidth(CGImageRef);
std::size_t CGImageGetHeight(CGImageRef);
}
