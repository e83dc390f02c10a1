// Points, sizes, rectangles, transforms and colours in the phone's terms: logical points, y downwards.
// A pixel rectangle is what the points become on the screen: whole device pixels.
#pragma once

#include <optional>

namespace Simulator::Graphics {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    Point origin() const { return {x, y}; }
    Size size() const { return {width, height}; }
    Point center() const { return {x + width / 2, y + height / 2}; }
    double right() const { return x + width; }
    double bottom() const { return y + height; }
    bool isEmpty() const { return !(width > 0 && height > 0); }
    bool isFinite() const;
    Rect insetBy(double dx, double dy) const { return {x + dx, y + dy, width - 2 * dx, height - 2 * dy}; }
    Rect unionWith(const Rect& other) const;
    bool operator==(const Rect&) const = default;
};

struct EdgeInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
    bool operator==(const EdgeInsets&) const = default;
};

/// x' = a x + c y + tx, y' = b x + d y + ty.
struct AffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;

    static AffineTransform translation(double x, double y) { return {1, 0, 0, 1, x, y}; }
    static AffineTransform scale(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    static AffineTransform rotation(double radians);

    /// First this transform, then `next`: the order of the phone's concatenation.
    AffineTransform concat(const AffineTransform& next) const;
    std::optional<AffineTransform> inverted() const;
    Point apply(Point point) const;
    /// The smallest upright rectangle around the transformed one.
    Rect apply(const Rect& rect) const;
    bool isIdentity() const { return *this == AffineTransform{}; }
    /// Upright rectangles stay upright and unmirrored.
    bool isScaleAndTranslation() const { return b == 0 && c == 0 && a > 0 && d > 0; }
    bool isFinite() const;
    bool operator==(const AffineTransform&) const = default;
};

struct Color {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 1;
    Color withAlpha(double alpha) const { return {r, g, b, alpha}; }
    /// Components within 0 and 1; what is no number is 0.
    Color clamped() const;
    bool operator==(const Color&) const = default;
};

struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    /// The whole pixels that the rectangle touches.
    static PixelRect around(const Rect& rect);
    /// The whole pixels nearest to the rectangle's edges.
    static PixelRect nearest(const Rect& rect);

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool isEmpty() const { return width <= 0 || height <= 0; }
    bool intersects(const PixelRect& other) const { return !intersectionWith(other).isEmpty(); }
    bool contains(const PixelRect& other) const;
    PixelRect intersectionWith(const PixelRect& other) const;
    PixelRect unionWith(const PixelRect& other) const;
    PixelRect grownBy(int margin) const { return {x - margin, y - margin, width + 2 * margin, height + 2 * margin}; }
    bool operator==(const PixelRect&) const = default;
};

}
