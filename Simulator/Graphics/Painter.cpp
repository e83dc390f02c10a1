// The drawing of each kind of item by Cairo.
#include "Simulator/Graphics/Painter.hpp"

#include "Simulator/Graphics/Blur.hpp"
#include "Simulator/Graphics/ImageSource.hpp"
#include "Simulator/Graphics/ItemBitmaps.hpp"

#include <algorithm>

namespace Simulator::Graphics {

namespace {

class SavedState {
public:
    explicit SavedState(cairo_t* canvas)
        : m_canvas(canvas)
    {
        cairo_save(canvas);
    }
    ~SavedState() { cairo_restore(m_canvas); }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;

private:
    cairo_t* m_canvas;
};

void setColor(cairo_t* canvas, const Color& color, double opacity = 1)
{
    cairo_set_source_rgba(canvas, color.r, color.g, color.b, color.a * opacity);
}

void clipTo(cairo_t* canvas, const PixelRect& rect)
{
    cairo_rectangle(canvas, rect.x, rect.y, rect.width, rect.height);
    cairo_clip(canvas);
}

void clear(cairo_t* canvas, const Color& color)
{
    cairo_set_operator(canvas, CAIRO_OPERATOR_SOURCE);
    setColor(canvas, color);
    cairo_paint(canvas);
    cairo_set_operator(canvas, CAIRO_OPERATOR_OVER);
}

void blit(cairo_t* canvas, const Bitmap& bitmap, double opacity)
{
    if (!bitmap.surface)
        return;
    cairo_set_source_surface(canvas, bitmap.surface.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(canvas), CAIRO_FILTER_NEAREST);
    cairo_paint_with_alpha(canvas, opacity);
}

/// Paints the source where the bitmap is covered.
void mask(cairo_t* canvas, const Bitmap& bitmap, int dx = 0, int dy = 0)
{
    if (bitmap.surface)
        cairo_mask_surface(canvas, bitmap.surface.get(), dx, dy);
}

void blurSurface(cairo_surface_t* surface, const PixelRect& place, BlurKind kind, double sigma)
{
    cairo_surface_flush(surface);
    blur(cairo_image_surface_get_data(surface), place.width, place.height, cairo_image_surface_get_stride(surface),
        kind, sigma);
    cairo_surface_mark_dirty(surface);
}

bool isFull(const RoundedRect& shape, const AffineTransform& transform, const PixelRect& region)
{
    if (shape.radius > 0 || !transform.isScaleAndTranslation())
        return false;
    const Rect pixels = transform.apply(shape.rect);
    return pixels.x <= region.x && pixels.y <= region.y && pixels.right() >= region.right()
        && pixels.bottom() >= region.bottom();
}

}

Painter::Painter(BitmapCache& bitmaps, const DisplayList& list, Color ground)
    : m_bitmaps(bitmaps)
    , m_list(list)
    , m_ground(ground)
{
}

void Painter::paint(cairo_surface_t* surface, const PixelRect& region)
{
    const auto start
        = std::find_if(m_list.rbegin(), m_list.rend(), [&](const DisplayItem& item) { return hides(item, region); });
    auto first = m_list.begin();
    if (start != m_list.rend()) {
        first = std::prev(start.base());
    } else {
        const CanvasPointer canvas(cairo_create(surface));
        clipTo(canvas.get(), region);
        clear(canvas.get(), m_ground);
    }
    // Each item has a canvas of its own, so that one that Cairo cannot draw does not take the others with it.
    for (auto item = first; item != m_list.end(); ++item) {
        if (!item->bounds.intersects(region))
            continue;
        const CanvasPointer canvas(cairo_create(surface));
        clipTo(canvas.get(), region);
        paintItem(canvas.get(), *item, region);
    }
}

/// Nothing behind the item shows in the region.
bool Painter::hides(const DisplayItem& item, const PixelRect& region)
{
    if (item.opacity < 1 || !item.bounds.contains(region))
        return false;
    if (const auto* fill = std::get_if<Fill>(&item.content))
        return fill->color.a == 1 && fill->ringWidth == 0 && isFull(fill->shape, item.transform, region);
    if (const auto* picture = std::get_if<Picture>(&item.content)) {
        const bool mayHide = !picture->tint && !picture->place.isEmpty() && picture->image->source().isOpaque();
        return mayHide && m_bitmaps.find(item.bitmapKey, [&] { return pictureBitmap(item); }).isOpaque;
    }
    return false;
}

void Painter::paintList(cairo_t* canvas, const DisplayList& list, const PixelRect& region)
{
    for (const auto& item : list) {
        if (item.bounds.intersects(region))
            paintItem(canvas, item, region);
    }
}

void Painter::paintItem(cairo_t* canvas, const DisplayItem& item, const PixelRect& region)
{
    const SavedState saved(canvas);
    if (item.isClipped)
        clipTo(canvas, item.bounds);
    if (const auto* fill = std::get_if<Fill>(&item.content))
        paintFill(canvas, item, *fill);
    else if (const auto* glyphs = std::get_if<Glyphs>(&item.content))
        paintGlyphs(canvas, item, *glyphs);
    else if (const auto* picture = std::get_if<Picture>(&item.content))
        paintPicture(canvas, item, *picture);
    else if (std::holds_alternative<GradientFill>(item.content))
        blit(canvas, m_bitmaps.find(item.bitmapKey, [&] { return gradientBitmap(item); }), item.opacity);
    else if (const auto* backdrop = std::get_if<Backdrop>(&item.content))
        blit(canvas, m_bitmaps.find(item.bitmapKey, [&] { return backdropBitmap(item, *backdrop); }), item.opacity);
    else if (const auto* group = std::get_if<Group>(&item.content))
        paintGroup(canvas, item, *group, region);
}

void Painter::paintFill(cairo_t* canvas, const DisplayItem& item, const Fill& fill)
{
    setColor(canvas, fill.color, item.opacity);
    if (item.bitmapKey == 0) {
        fillShape(canvas, fill.shape, fill.ringWidth, item.transform);
        return;
    }
    const auto make = [&] { return coverageBitmap(item, fill.shape, fill.ringWidth); };
    mask(canvas, m_bitmaps.find(item.bitmapKey, make));
}

void Painter::paintGlyphs(cairo_t* canvas, const DisplayItem& item, const Glyphs& glyphs)
{
    const cairo_matrix_t matrix = toMatrix(item.transform);
    cairo_transform(canvas, &matrix);
    glyphs.layout->draw(canvas, item.opacity);
}

void Painter::paintPicture(cairo_t* canvas, const DisplayItem& item, const Picture& picture)
{
    const Bitmap& bitmap = m_bitmaps.find(item.bitmapKey, [&] { return pictureBitmap(item); });
    if (!picture.tint) {
        blit(canvas, bitmap, item.opacity);
        return;
    }
    setColor(canvas, *picture.tint, item.opacity);
    if (bitmap.surface && bitmap.isOpaque) {
        clipTo(canvas, bitmap.place);
        cairo_paint(canvas);
    } else {
        mask(canvas, bitmap);
    }
}

void Painter::paintShadow(cairo_t* canvas, const DisplayItem& item, const Group& group)
{
    const CastShadow& shadow = *group.shadow;
    const Bitmap& bitmap = m_bitmaps.find(item.bitmapKey, [&] {
        const PixelRect place = group.contentBounds.grownBy(blurExtent(shadow.sigma));
        Bitmap made = Bitmap::blank(CAIRO_FORMAT_A8, place);
        if (made.surface) {
            paintList(made.canvas().get(), group.items, group.contentBounds);
            blurSurface(made.surface.get(), place, BlurKind::alpha, shadow.sigma);
        }
        return made;
    });
    setColor(canvas, shadow.color);
    mask(canvas, bitmap, shadow.dx, shadow.dy);
}

void Painter::paintGroup(cairo_t* canvas, const DisplayItem& item, const Group& group, const PixelRect& region)
{
    const PixelRect visible = region.intersectionWith(item.bounds);
    const auto paintContent = [&] {
        if (group.shadow)
            paintShadow(canvas, item, group);
        paintList(canvas, group.items, visible);
    };
    if (item.opacity == 1 && !group.mask) {
        paintContent();
        return;
    }
    clipTo(canvas, visible);
    cairo_push_group(canvas);
    paintContent();
    cairo_pop_group_to_source(canvas);
    if (group.mask)
        mask(canvas, m_bitmaps.find(item.bitmapKey, [&] { return coverageBitmap(item, *group.mask, 0); }));
    else
        cairo_paint_with_alpha(canvas, item.opacity);
}

/// What is drawn before the item; inside its groups as if they were no groups.
bool Painter::paintUntil(cairo_t* canvas, const DisplayList& list, const DisplayItem& stop, const PixelRect& region)
{
    for (const auto& item : list) {
        if (&item == &stop)
            return true;
        const auto* group = std::get_if<Group>(&item.content);
        const bool holdsStop
            = group && item.bounds.intersects(region) && paintUntil(canvas, group->items, stop, region);
        if (holdsStop)
            return true;
        if (item.bounds.intersects(region))
            paintItem(canvas, item, region);
    }
    return false;
}

/// The screen behind is drawn once more for the purpose: what the screen shows there may already be covered.
Bitmap Painter::backdropBitmap(const DisplayItem& item, const Backdrop& backdrop)
{
    const Bitmap behind = Bitmap::blank(CAIRO_FORMAT_ARGB32, backdrop.input);
    Bitmap bitmap = Bitmap::blank(CAIRO_FORMAT_ARGB32, item.bounds);
    if (!behind.surface || !bitmap.surface)
        return {};
    {
        const CanvasPointer canvas = behind.canvas();
        clear(canvas.get(), m_ground);
        paintUntil(canvas.get(), m_list, item, backdrop.input);
    }
    blurSurface(behind.surface.get(), backdrop.input, BlurKind::color, backdrop.sigma);
    const CanvasPointer canvas = bitmap.canvas();
    addPath(canvas.get(), backdrop.shape, item.transform);
    cairo_clip(canvas.get());
    blit(canvas.get(), behind, 1);
    setColor(canvas.get(), backdrop.tint);
    cairo_paint(canvas.get());
    return bitmap;
}

}
