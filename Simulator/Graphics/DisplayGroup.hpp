// Items that are drawn as one, and the shadows that they cast.
#pragma once

#include "Simulator/Graphics/DisplayItem.hpp"

#include <optional>

namespace Simulator::Graphics {

/// How much larger lengths are in pixels.
double scaleOf(const AffineTransform& transform);

/// Nothing for a layer without a visible shadow.
std::optional<CastShadow> castShadow(const Layer& layer, const AffineTransform& transform);
/// What is seen, and everything whose shadow can reach it.
PixelRect clipWithShadow(const PixelRect& clip, const CastShadow& shadow);

/// Adds the group unless nothing of it can be seen.
void addGroup(Group group, const AffineTransform& transform, double opacity, const PixelRect& clip, DisplayList& out);
/// A group's digests and bounds from its items; to be called again when those of the items change.
void summarize(DisplayItem& item);

}
