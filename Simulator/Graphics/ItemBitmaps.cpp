// Decodes pictures to the size on the screen; draws what is turned or mirrored through a transform.
#include "Simulator/Graphics/ItemBitmaps.hpp"

#include "Simulator/Graphics/ImageSource.hpp"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

namespace Simulator::Graphics {

namespace {

/// Turned pictures are scaled to about their size on the screen first, up to this.
constexpr double largestTurnedSide = 4'096;

Bitmap bitmapOf(Pixels pixels, const PixelRect& place, bool isOpaque)
{
    if (pixels.isEmpty())
        return {};
    auto owned = std::make_unique<Pixels>(std::move(pixels));
    const auto format = isOpaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32;
    SurfacePointer surface(cairo_image_surface_create_for_data(
        owned->bytes.data(), format, owned->size.width, owned->size.height, owned->stride()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return {};
    static const cairo_user_data_key_t ownedPixels = {};
    const auto release = [](void* data) { delete static_cast<Pixels*>(data); };
    if (cairo_surface_set_user_data(surface.get(), &ownedPixels, owned.get(), release) != CAIRO_STATUS_SUCCESS)
        return {};
    owned.release();
    cairo_surface_set_device_offset(surface.get(), -place.x, -place.y);
    return {std::move(surface), place, isOpaque};
}

Bitmap turnedBitmap(const DisplayItem& item, const Picture& picture)
{
    const AffineTransform& transform = item.transform;
    const double across = std::hypot(transform.a, transform.b) * picture.rect.width;
    const double down = std::hypot(transform.c, transform.d) * picture.rect.height;
    const PixelSize size = {static_cast<int>(std::ceil(std::clamp(across, 1.0, largestTurnedSide))),
        static_cast<int>(std::ceil(std::clamp(down, 1.0, largestTurnedSide)))};
    const PixelRect whole = {0, 0, size.width, size.height};
    const auto& source = picture.image->source();
    const Bitmap upright = bitmapOf(scaledPixels(source, size, whole, true), whole, source.isOpaque());
    if (!upright.surface)
        return {};
    Bitmap turned = Bitmap::blank(CAIRO_FORMAT_ARGB32, item.bounds);
    if (!turned.surface)
        return {};
    const CanvasPointer canvas = turned.canvas();
    const cairo_matrix_t matrix = toMatrix(transform);
    cairo_set_matrix(canvas.get(), &matrix);
    cairo_translate(canvas.get(), picture.rect.x, picture.rect.y);
    cairo_scale(canvas.get(), picture.rect.width / size.width, picture.rect.height / size.height);
    cairo_set_source_surface(canvas.get(), upright.surface.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(canvas.get()), CAIRO_FILTER_BILINEAR);
    cairo_pattern_set_extend(cairo_get_source(canvas.get()), CAIRO_EXTEND_PAD);
    cairo_rectangle(canvas.get(), 0, 0, size.width, size.height);
    cairo_fill(canvas.get());
    return turned;
}

PatternPointer patternOf(const Gradient& gradient, const Rect& area)
{
    const auto at = [&](const Point& unit) {
        return Point{area.x + unit.x * area.width, area.y + unit.y * area.height};
    };
    const Point start = at(gradient.start);
    const Point end = at(gradient.end);
    PatternPointer pattern(cairo_pattern_create_linear(start.x, start.y, end.x, end.y));
    const std::size_t count = gradient.colors.size();
    for (std::size_t i = 0; i < count; ++i) {
        const double spread = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
        const double location = gradient.locations.size() == count ? gradient.locations[i] : spread;
        const Color color = gradient.colors[i].clamped();
        cairo_pattern_add_color_stop_rgba(pattern.get(), location, color.r, color.g, color.b, color.a);
    }
    return pattern;
}

}

cairo_matrix_t toMatrix(const AffineTransform& transform)
{
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty);
    return matrix;
}

void addPath(cairo_t* canvas, const RoundedRect& shape, const AffineTransform& transform)
{
    cairo_matrix_t before;
    cairo_get_matrix(canvas, &before);
    const cairo_matrix_t matrix = toMatrix(transform);
    cairo_transform(canvas, &matrix);
    const Rect& rect = shape.rect;
    const double radius = shape.radius;
    if (radius <= 0) {
        cairo_rectangle(canvas, rect.x, rect.y, rect.width, rect.height);
    } else {
        constexpr double quarter = std::numbers::pi / 2;
        cairo_new_sub_path(canvas);
        cairo_arc(canvas, rect.right() - radius, rect.y + radius, radius, -quarter, 0);
        cairo_arc(canvas, rect.right() - radius, rect.bottom() - radius, radius, 0, quarter);
        cairo_arc(canvas, rect.x + radius, rect.bottom() - radius, radius, quarter, 2 * quarter);
        cairo_arc(canvas, rect.x + radius, rect.y + radius, radius, 2 * quarter, 3 * quarter);
        cairo_close_path(canvas);
    }
    cairo_set_matrix(canvas, &before);
}

void fillShape(cairo_t* canvas, const RoundedRect& shape, double ringWidth, const AffineTransform& transform)
{
    addPath(canvas, shape, transform);
    if (ringWidth > 0) {
        const RoundedRect inner = {shape.rect.insetBy(ringWidth, ringWidth), std::max(0.0, shape.radius - ringWidth)};
        if (!inner.rect.isEmpty())
            addPath(canvas, inner, transform);
        cairo_set_fill_rule(canvas, CAIRO_FILL_RULE_EVEN_ODD);
    }
    cairo_fill(canvas);
}

Bitmap coverageBitmap(const DisplayItem& item, const RoundedRect& shape, double ringWidth)
{
    Bitmap bitmap = Bitmap::blank(CAIRO_FORMAT_A8, item.bounds);
    if (bitmap.surface)
        fillShape(bitmap.canvas().get(), shape, ringWidth, item.transform);
    return bitmap;
}

Bitmap pictureBitmap(const DisplayItem& item)
{
    const auto& picture = std::get<Picture>(item.content);
    if (picture.place.isEmpty())
        return turnedBitmap(item, picture);
    PixelRect window = item.bounds;
    window.x -= picture.place.x;
    window.y -= picture.place.y;
    const PixelSize full = {picture.place.width, picture.place.height};
    const auto& source = picture.image->source();
    return bitmapOf(scaledPixels(source, full, window, true), item.bounds, source.isOpaque());
}

Bitmap gradientBitmap(const DisplayItem& item)
{
    const auto& fill = std::get<GradientFill>(item.content);
    Bitmap bitmap = Bitmap::blank(CAIRO_FORMAT_ARGB32, item.bounds);
    if (!bitmap.surface)
        return {};
    const CanvasPointer canvas = bitmap.canvas();
    const PatternPointer pattern = patternOf(fill.gradient, fill.area);
    addPath(canvas.get(), fill.shape, item.transform);
    const cairo_matrix_t matrix = toMatrix(item.transform);
    cairo_set_matrix(canvas.get(), &matrix);
    cairo_set_source(canvas.get(), pattern.get());
    cairo_fill(canvas.get());
    return bitmap;
}

}
