// Arithmetic of rectangles, transforms and colours.
#include "Simulator/Graphics/Geometry.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

/// Far beyond every screen, and still far from the overflow of sums.
constexpr double pixelLimit = 1 << 26;

int toPixel(double value)
{
    return static_cast<int>(std::clamp(value, -pixelLimit, pixelLimit));
}

PixelRect betweenEdges(double left, double top, double right, double bottom)
{
    const int x = toPixel(left);
    const int y = toPixel(top);
    return {x, y, std::max(0, toPixel(right) - x), std::max(0, toPixel(bottom) - y)};
}

double unit(double component)
{
    return component > 0 ? std::min(component, 1.0) : 0;
}

}

bool Rect::isFinite() const
{
    return std::isfinite(x) && std::isfinite(y) && std::isfinite(width) && std::isfinite(height);
}

Rect Rect::unionWith(const Rect& other) const
{
    if (isEmpty())
        return other;
    if (other.isEmpty())
        return *this;
    const double left = std::min(x, other.x);
    const double top = std::min(y, other.y);
    return {left, top, std::max(right(), other.right()) - left, std::max(bottom(), other.bottom()) - top};
}

AffineTransform AffineTransform::rotation(double radians)
{
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    return {cosine, sine, -sine, cosine, 0, 0};
}

AffineTransform AffineTransform::concat(const AffineTransform& next) const
{
    return {a * next.a + b * next.c, a * next.b + b * next.d, c * next.a + d * next.c, c * next.b + d * next.d,
        tx * next.a + ty * next.c + next.tx, tx * next.b + ty * next.d + next.ty};
}

std::optional<AffineTransform> AffineTransform::inverted() const
{
    const double determinant = a * d - b * c;
    if (!std::isfinite(determinant) || std::abs(determinant) < 1e-12)
        return std::nullopt;
    return AffineTransform{d / determinant, -b / determinant, -c / determinant, a / determinant,
        (c * ty - d * tx) / determinant, (b * tx - a * ty) / determinant};
}

Point AffineTransform::apply(Point point) const
{
    return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty};
}

Rect AffineTransform::apply(const Rect& rect) const
{
    const Point corners[] = {apply(Point{rect.x, rect.y}), apply(Point{rect.right(), rect.y}),
        apply(Point{rect.x, rect.bottom()}), apply(Point{rect.right(), rect.bottom()})};
    const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    const auto [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    return {left, top, right - left, bottom - top};
}

bool AffineTransform::isFinite() const
{
    return std::isfinite(a) && std::isfinite(b) && std::isfinite(c) && std::isfinite(d) && std::isfinite(tx)
        && std::isfinite(ty);
}

Color Color::clamped() const
{
    return {unit(r), unit(g), unit(b), unit(a)};
}

PixelRect PixelRect::around(const Rect& rect)
{
    // A hair of tolerance: edges computed to lie on a pixel boundary should not reach into the next pixel.
    constexpr double hair = 1e-6;
    return betweenEdges(std::floor(rect.x + hair), std::floor(rect.y + hair), std::ceil(rect.right() - hair),
        std::ceil(rect.bottom() - hair));
}

PixelRect PixelRect::nearest(const Rect& rect)
{
    return betweenEdges(std::round(rect.x), std::round(rect.y), std::round(rect.right()), std::round(rect.bottom()));
}

bool PixelRect::contains(const PixelRect& other) const
{
    return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
}

PixelRect PixelRect::intersectionWith(const PixelRect& other) const
{
    const int left = std::max(x, other.x);
    const int top = std::max(y, other.y);
    return {left, top, std::max(0, std::min(right(), other.right()) - left),
        std::max(0, std::min(bottom(), other.bottom()) - top)};
}

PixelRect PixelRect::unionWith(const PixelRect& other) const
{
    if (isEmpty())
        return other;
    if (other.isEmpty())
        return *this;
    const int left = std::min(x, other.x);
    const int top = std::min(y, other.y);
    return {left, top, std::max(right(), other.right()) - left, std::max(bottom(), other.bottom()) - top};
}

}
