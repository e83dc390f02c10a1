// Walks the tree once and leaves a list of drawing calls. The tree of the lock screen is only moved, never turned.
#include "Benchmarks/BareScreen.hpp"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numbers>

namespace Benchmarks {

using namespace Simulator::Graphics;

struct BareScreen::Place {
    Rect rect;
    double opacity = 1;
};

namespace {

using SharedSurface = std::shared_ptr<cairo_surface_t>;

SharedSurface shared(cairo_surface_t* surface)
{
    return SharedSurface(surface, cairo_surface_destroy);
}

void setColor(cairo_t* canvas, const Color& color, double opacity)
{
    cairo_set_source_rgba(canvas, color.r, color.g, color.b, color.a * opacity);
}

void roundedPath(cairo_t* canvas, const Rect& rect, double radius)
{
    constexpr double quarter = std::numbers::pi / 2;
    radius = std::min({radius, rect.width / 2, rect.height / 2});
    if (radius <= 0) {
        cairo_rectangle(canvas, rect.x, rect.y, rect.width, rect.height);
        return;
    }
    cairo_new_sub_path(canvas);
    cairo_arc(canvas, rect.right() - radius, rect.y + radius, radius, -quarter, 0);
    cairo_arc(canvas, rect.right() - radius, rect.bottom() - radius, radius, 0, quarter);
    cairo_arc(canvas, rect.x + radius, rect.bottom() - radius, radius, quarter, 2 * quarter);
    cairo_arc(canvas, rect.x + radius, rect.y + radius, radius, 2 * quarter, 3 * quarter);
    cairo_close_path(canvas);
}

/// Pixels of a picture as Cairo has them: blue first.
SharedSurface surfaceOf(const Image& image)
{
    const int width = static_cast<int>(image.size().width);
    const int height = static_cast<int>(image.size().height);
    auto surface = shared(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    std::uint8_t* pixels = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    image.drawInto({pixels, width, height, stride});
    bool isOpaque = true;
    for (int i = 0; i < height * stride; i += 4) {
        std::swap(pixels[i], pixels[i + 2]);
        isOpaque = isOpaque && pixels[i + 3] == 255;
    }
    cairo_surface_mark_dirty(surface.get());
    if (!isOpaque)
        return surface;
    auto opaque = shared(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height));
    std::memcpy(cairo_image_surface_get_data(opaque.get()), pixels, static_cast<std::size_t>(stride) * height);
    cairo_surface_mark_dirty(opaque.get());
    return opaque;
}

/// Without anything that stands on a blurred background.
Layer backgroundsOnly(const Layer& layer)
{
    Layer copy = layer;
    if (std::holds_alternative<BackdropBlur>(layer.content)) {
        copy.children.clear();
        return copy;
    }
    for (Layer& child : copy.children)
        child = backgroundsOnly(child);
    return copy;
}

FontMapPointer fontMapWith(const std::vector<std::filesystem::path>& fontFiles)
{
    FontMapPointer fontMap(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
    FcConfig* configuration = FcConfigCreate();
    for (const auto& file : fontFiles)
        FcConfigAppFontAddFile(configuration, reinterpret_cast<const FcChar8*>(file.c_str()));
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(fontMap.get()), configuration);
    FcConfigDestroy(configuration);
    return fontMap;
}

PangoContextPointer contextOf(PangoFontMap* fontMap, double scale)
{
    PangoContextPointer context(pango_font_map_create_context(fontMap));
    const FontOptionsPointer options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options.get());
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    PangoMatrix matrix = PANGO_MATRIX_INIT;
    pango_matrix_scale(&matrix, scale, scale);
    pango_context_set_matrix(context.get(), &matrix);
    return context;
}

PangoAttribute* fontOf(const TextRun& run, const FontCatalogue& catalogue)
{
    const auto font = run.font ? run.font : catalogue.systemFont();
    PangoFontDescription* description = pango_font_description_new();
    pango_font_description_set_family(description, font->familyName().c_str());
    pango_font_description_set_weight(description, static_cast<PangoWeight>(font->weight()));
    pango_font_description_set_style(description, font->isItalic() ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(description, run.size * PANGO_SCALE);
    PangoAttribute* attribute = pango_attr_font_desc_new(description);
    pango_font_description_free(description);
    return attribute;
}

/// The room that a picture in the line takes.
PangoAttribute* shapeOf(const TextAttachment& attachment)
{
    const auto units = [](double points) { return static_cast<int>(std::round(points * PANGO_SCALE)); };
    const Rect& bounds = attachment.bounds;
    const PangoRectangle room
        = {units(bounds.x), units(-bounds.y - bounds.height), units(bounds.width), units(bounds.height)};
    return pango_attr_shape_new(&room, &room);
}

}

BareScreen::BareScreen(
    const Layer& screen, FontCatalogue& catalogue, const std::vector<std::filesystem::path>& fontFiles, double scale)
    : m_catalogue(catalogue)
    , m_scale(scale)
    , m_backgrounds(catalogue, screen.bounds.size(), scale)
    , m_fontMap(fontMapWith(fontFiles))
    , m_context(contextOf(m_fontMap.get(), scale))
{
    m_backgrounds.render(backgroundsOnly(screen));
    const FrameView frame = m_backgrounds.pixels();
    m_surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, frame.width, frame.height));
    add(screen, {{0, 0, 0, 0}, 1});
}

void BareScreen::draw()
{
    const CanvasPointer canvas(cairo_create(m_surface.get()));
    cairo_scale(canvas.get(), m_scale, m_scale);
    for (const auto& step : m_steps)
        step(canvas.get());
    cairo_surface_flush(m_surface.get());
}

double BareScreen::distanceFrom(const FrameView& frame) const
{
    const std::uint8_t* own = cairo_image_surface_get_data(m_surface.get());
    const int ownStride = cairo_image_surface_get_stride(m_surface.get());
    double sum = 0;
    for (int y = 0; y < frame.height; ++y)
        for (int x = 0; x < frame.width * 4; ++x)
            sum += x % 4 == 3 ? 0 : std::abs(own[y * ownStride + x] - frame.pixels[y * frame.stride + x]);
    return sum / (3.0 * frame.width * frame.height);
}

void BareScreen::add(const Layer& layer, const Place& parent)
{
    const Rect rect = {parent.rect.x + layer.position.x - layer.bounds.width / 2,
        parent.rect.y + layer.position.y - layer.bounds.height / 2, layer.bounds.width, layer.bounds.height};
    const Place place = {rect, parent.opacity * layer.opacity};
    addFill(layer, place);
    if (const auto* text = std::get_if<Text>(&layer.content))
        addText(*text, place);
    else if (std::holds_alternative<BackdropBlur>(layer.content))
        addBackdrop(layer, place);
    else if (!std::holds_alternative<std::monostate>(layer.content))
        addPicture(layer, place);
    const Place inside = {{rect.x - layer.bounds.x, rect.y - layer.bounds.y, rect.width, rect.height}, place.opacity};
    for (const Layer& child : layer.children)
        add(child, inside);
    addBorder(layer, place);
}

void BareScreen::addFill(const Layer& layer, const Place& place)
{
    if (!layer.backgroundColor || layer.backgroundColor->a == 0)
        return;
    m_steps.push_back([rect = place.rect, radius = layer.cornerRadius, color = *layer.backgroundColor,
                          opacity = place.opacity](cairo_t* canvas) {
        setColor(canvas, color, opacity);
        roundedPath(canvas, rect, radius);
        cairo_fill(canvas);
    });
}

void BareScreen::addBorder(const Layer& layer, const Place& place)
{
    if (layer.borderWidth <= 0)
        return;
    const double width = layer.borderWidth;
    m_steps.push_back([rect = place.rect.insetBy(width / 2, width / 2), radius = layer.cornerRadius - width / 2,
                          color = layer.borderColor, opacity = place.opacity, width](cairo_t* canvas) {
        setColor(canvas, color, opacity);
        cairo_set_line_width(canvas, width);
        roundedPath(canvas, rect, radius);
        cairo_stroke(canvas);
    });
}

void BareScreen::addPicture(const Layer& layer, const Place& place)
{
    Layer alone = Layer::withFrame({0, 0, place.rect.width, place.rect.height});
    alone.content = layer.content;
    alone.clipsToBounds = layer.clipsToBounds;
    const Image::Pointer image = rasterize(m_catalogue, alone, place.rect.size(), m_scale);
    if (!image)
        return;
    const double left = std::round(place.rect.x * m_scale);
    const double top = std::round(place.rect.y * m_scale);
    m_steps.push_back([surface = surfaceOf(*image), left, top, opacity = place.opacity](cairo_t* canvas) {
        cairo_save(canvas);
        cairo_identity_matrix(canvas);
        cairo_set_source_surface(canvas, surface.get(), left, top);
        cairo_pattern_set_filter(cairo_get_source(canvas), CAIRO_FILTER_NEAREST);
        cairo_paint_with_alpha(canvas, opacity);
        cairo_restore(canvas);
    });
}

/// The finished background is cut out of the reference, with its round corners.
void BareScreen::addBackdrop(const Layer& layer, const Place& place)
{
    const FrameView frame = m_backgrounds.pixels();
    const PixelRect pixels = PixelRect::around(
        {place.rect.x * m_scale, place.rect.y * m_scale, place.rect.width * m_scale, place.rect.height * m_scale});
    auto whole = shared(cairo_image_surface_create_for_data(
        const_cast<std::uint8_t*>(frame.pixels), CAIRO_FORMAT_RGB24, frame.width, frame.height, frame.stride));
    auto surface = shared(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width, pixels.height));
    const CanvasPointer canvas(cairo_create(surface.get()));
    cairo_translate(canvas.get(), -pixels.x, -pixels.y);
    roundedPath(canvas.get(),
        {place.rect.x * m_scale, place.rect.y * m_scale, place.rect.width * m_scale, place.rect.height * m_scale},
        layer.cornerRadius * m_scale);
    cairo_set_source_surface(canvas.get(), whole.get(), 0, 0);
    cairo_fill(canvas.get());
    m_steps.push_back([surface, pixels](cairo_t* onto) {
        cairo_save(onto);
        cairo_identity_matrix(onto);
        cairo_set_source_surface(onto, surface.get(), pixels.x, pixels.y);
        cairo_pattern_set_filter(cairo_get_source(onto), CAIRO_FILTER_NEAREST);
        cairo_paint(onto);
        cairo_restore(onto);
    });
}

PangoLayoutPointer BareScreen::layoutOf(const Text& text, const Place& place) const
{
    PangoLayoutPointer layout(pango_layout_new(m_context.get()));
    PangoAttrList* attributes = pango_attr_list_new();
    std::string characters;
    for (const TextRun& run : text.runs) {
        PangoAttribute* attribute = run.attachment ? shapeOf(*run.attachment) : fontOf(run, m_catalogue);
        attribute->start_index = static_cast<guint>(characters.size());
        characters += run.attachment ? "\uFFFC" : run.string;
        attribute->end_index = static_cast<guint>(characters.size());
        pango_attr_list_insert(attributes, attribute);
    }
    pango_layout_set_text(layout.get(), characters.data(), static_cast<int>(characters.size()));
    pango_layout_set_attributes(layout.get(), attributes);
    pango_attr_list_unref(attributes);
    pango_layout_set_width(layout.get(), static_cast<int>(place.rect.width * PANGO_SCALE));
    pango_layout_set_ellipsize(layout.get(), PANGO_ELLIPSIZE_END);
    if (text.alignment == TextAlignment::center)
        pango_layout_set_alignment(layout.get(), PANGO_ALIGN_CENTER);
    else if (text.alignment == TextAlignment::right)
        pango_layout_set_alignment(layout.get(), PANGO_ALIGN_RIGHT);
    return layout;
}

void BareScreen::addText(const Text& text, const Place& place)
{
    if (text.runs.empty())
        return;
    std::shared_ptr<PangoLayout> layout(layoutOf(text, place).release(), g_object_unref);
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout.get(), &width, &height);
    const double top = place.rect.y + (place.rect.height - static_cast<double>(height) / PANGO_SCALE) / 2;
    m_steps.push_back(
        [layout, left = place.rect.x, top, color = text.runs.front().color, opacity = place.opacity](cairo_t* canvas) {
            setColor(canvas, color, opacity);
            cairo_move_to(canvas, left, top);
            pango_cairo_show_layout(canvas, layout.get());
        });
}

}
