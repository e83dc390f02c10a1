// The platform's geometry and the drawing library's, converted; and the check for what is no number.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Simulator/Graphics/Geometry.hpp"

#include <cmath>

namespace Simulator {

inline Graphics::Rect toGraphics(const CGRect& rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}
inline CGRect fromGraphics(const Graphics::Rect& rect)
{
    return {{rect.x, rect.y}, {rect.width, rect.height}};
}
inline Graphics::AffineTransform toGraphics(const CGAffineTransform& transform)
{
    return {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty};
}

inline bool isFinite(const CGPoint& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}
inline bool isFinite(const CGSize& size)
{
    return std::isfinite(size.width) && std::isfinite(size.height);
}
inline bool isFinite(const CGRect& rect)
{
    return isFinite(rect.origin) && isFinite(rect.size);
}

}
