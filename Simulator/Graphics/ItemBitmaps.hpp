// The bitmaps that items are drawn from, at the very pixels where they are shown: pictures, gradients, coverage.
#pragma once

#include "Simulator/Graphics/BitmapCache.hpp"
#include "Simulator/Graphics/DisplayItem.hpp"

namespace Simulator::Graphics {

Bitmap pictureBitmap(const DisplayItem& item);
Bitmap gradientBitmap(const DisplayItem& item);
/// How far each pixel is covered by a shape or by a ring inside it.
Bitmap coverageBitmap(const DisplayItem& item, const RoundedRect& shape, double ringWidth);

/// Adds the shape to the path, transformed to pixels.
void addPath(cairo_t* canvas, const RoundedRect& shape, const AffineTransform& transform);
void fillShape(cairo_t* canvas, const RoundedRect& shape, double ringWidth, const AffineTransform& transform);
cairo_matrix_t toMatrix(const AffineTransform& transform);

}
