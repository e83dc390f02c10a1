// Colours of the drawing library, and its colour spaces.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"

using CGColorRef = struct CGColor*;
using CGColorSpaceRef = struct CGColorSpace*;

extern "C" {
/// Two components (grey, alpha) or four (red, green, blue, alpha) for the usual colour spaces.
std::size_t CGColorGetNumberOfComponents(CGColorRef);
const CGFloat* CGColorGetComponents(CGColorRef);
CGColorSpaceRef CGColorSpaceCreateDeviceRGB();
void CGColorSpaceRelease(CGColorSpaceRef);
}
