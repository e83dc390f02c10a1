// Sets labels by Pango: attributes for fonts and pictures, the phone's rules for lines, truncation and shrinking.
#include "Simulator/Graphics/TextLayout.hpp"

#include "Simulator/Graphics/FontCatalogue.hpp"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

/// Pango counts in 1/1024 of a point in 32 bits.
constexpr double lengthLimit = 1'000'000;
constexpr double smallestScale = 0.05;

int toPango(double points)
{
    return static_cast<int>(std::lround(std::clamp(points, -lengthLimit, lengthLimit) * PANGO_SCALE));
}

double fromPango(int units)
{
    return static_cast<double>(units) / PANGO_SCALE;
}

Rect fromPango(const PangoRectangle& rect)
{
    return {fromPango(rect.x), fromPango(rect.y), fromPango(rect.width), fromPango(rect.height)};
}

/// What a text may ask of an attachment's bounds.
Rect usableBounds(const Rect& bounds)
{
    constexpr double limit = 10'000;
    if (!bounds.isFinite())
        return {};
    return {std::clamp(bounds.x, -limit, limit), std::clamp(bounds.y, -limit, limit),
        std::clamp(bounds.width, 0.0, limit), std::clamp(bounds.height, 0.0, limit)};
}

void insert(PangoAttrList* list, PangoAttribute* attribute, const TextContent::Range& range)
{
    attribute->start_index = static_cast<guint>(range.start);
    attribute->end_index = static_cast<guint>(range.end);
    pango_attr_list_insert(list, attribute);
}

PangoAttribute* shapeAttribute(const Rect& attachmentBounds)
{
    const Rect bounds = usableBounds(attachmentBounds);
    PangoRectangle rect = {0, toPango(-bounds.y - bounds.height), toPango(bounds.width), toPango(bounds.height)};
    return pango_attr_shape_new(&rect, &rect);
}

PangoAttribute* fontAttribute(const std::string& families, double size)
{
    PangoFontDescription* description = pango_font_description_new();
    pango_font_description_set_family(description, families.c_str());
    pango_font_description_set_absolute_size(description, size * PANGO_SCALE);
    PangoAttribute* attribute = pango_attr_font_desc_new(description);
    pango_font_description_free(description);
    return attribute;
}

/// The engine does not draw by it; it keeps runs of different colours apart.
PangoAttribute* colorAttribute(const Color& color)
{
    const Color shown = color.clamped();
    const auto component = [](double value) { return static_cast<guint16>(std::lround(value * 65535)); };
    return pango_attr_foreground_new(component(shown.r), component(shown.g), component(shown.b));
}

bool isEllipsis(const PangoItem* item)
{
    return item->analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS;
}

std::optional<PangoEllipsizeMode> ellipsizing(LineBreakMode mode)
{
    switch (mode) {
    case LineBreakMode::truncateHead:
        return PANGO_ELLIPSIZE_START;
    case LineBreakMode::truncateMiddle:
        return PANGO_ELLIPSIZE_MIDDLE;
    case LineBreakMode::truncateTail:
        return PANGO_ELLIPSIZE_END;
    default:
        return std::nullopt;
    }
}

double layoutWidth(PangoLayout* layout)
{
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    return fromPango(logical.width);
}

double layoutHeight(PangoLayout* layout)
{
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    return fromPango(logical.height);
}

}

TextLayout::TextLayout(Text text, Size bounds)
    : m_text(std::move(text))
    , m_bounds(bounds)
    , m_content(contentOf(m_text, bounds))
{
}

std::shared_ptr<const TextLayout> TextLayout::make(Typesetter& typesetter, const Text& text, Size bounds, double scale)
{
    std::shared_ptr<TextLayout> layout(new TextLayout(text, bounds));
    if (layout->m_content.string.empty() || !layout->set(typesetter, scale))
        return nullptr;
    return layout;
}

bool TextLayout::set(Typesetter& typesetter, double scale)
{
    std::vector<FaceRequest> requests;
    for (const auto& range : m_content.ranges)
        requests.push_back({range.run->font, range.characters});
    m_typesetting = typesetter.prepare(requests, scale);
    if (!m_typesetting.context)
        return false;
    m_layout.reset(pango_layout_new(m_typesetting.context->pango.get()));
    pango_layout_set_text(m_layout.get(), m_content.string.c_str(), static_cast<int>(m_content.string.size()));
    applyAttributes(1);
    if (m_text.adjustsFontSizeToFitWidth && m_text.numberOfLines == 1 && m_bounds.width > 0)
        shrinkToFit();
    wrapAndTruncate();
    placeLines();
    return true;
}

void TextLayout::applyAttributes(double fontScale)
{
    PangoAttrList* list = pango_attr_list_new();
    for (std::size_t i = 0; i < m_content.ranges.size(); ++i) {
        const auto& range = m_content.ranges[i];
        insert(list, fontAttribute(m_typesetting.families[i], usableFontSize(range.run->size) * fontScale), range);
        insert(list, colorAttribute(range.run->color), range);
        if (range.run->attachment)
            insert(list, shapeAttribute(range.run->attachment->bounds), range);
    }
    pango_layout_set_attributes(m_layout.get(), list);
    pango_attr_list_unref(list);
}

/// Widths follow font sizes almost linearly, but pictures in line keep theirs: a few rounds settle it.
void TextLayout::shrinkToFit()
{
    const double lowest = std::clamp(std::isfinite(m_text.minimumScale) ? m_text.minimumScale : 0, smallestScale, 1.0);
    double fontScale = 1;
    for (int round = 0; round < 8; ++round) {
        const double width = layoutWidth(m_layout.get());
        if (width <= m_bounds.width || fontScale <= lowest)
            return;
        const double step = round == 0 ? 1 : 0.998;
        fontScale = std::max(lowest, fontScale * m_bounds.width / width * step);
        applyAttributes(fontScale);
    }
}

void TextLayout::wrapAndTruncate()
{
    PangoLayout* layout = m_layout.get();
    if (m_bounds.width <= 0 || m_text.lineBreakMode == LineBreakMode::clip)
        return;
    pango_layout_set_width(layout, toPango(m_bounds.width));
    const bool byCharacter = m_text.lineBreakMode == LineBreakMode::characterWrap;
    pango_layout_set_wrap(layout, byCharacter ? PANGO_WRAP_CHAR : PANGO_WRAP_WORD_CHAR);
    pango_layout_set_justify(layout, m_text.alignment == TextAlignment::justified);
    const auto ellipsize = ellipsizing(m_text.lineBreakMode);
    if (!ellipsize)
        return;
    pango_layout_set_ellipsize(layout, *ellipsize);
    if (m_text.numberOfLines > 1)
        pango_layout_set_height(layout, -std::min(m_text.numberOfLines, 100'000));
    const bool isHeightBound = m_text.numberOfLines != 1 && m_bounds.height > 0;
    if (m_text.numberOfLines <= 0)
        pango_layout_set_height(layout, isHeightBound ? toPango(m_bounds.height) : G_MAXINT);
    else if (isHeightBound && layoutHeight(layout) > m_bounds.height + 0.5)
        pango_layout_set_height(layout, toPango(m_bounds.height));
}

double TextLayout::horizontalOffset(PangoLayoutLine* line, double lineWidth) const
{
    const double space = m_bounds.width > 0 ? m_bounds.width - lineWidth : 0;
    switch (m_text.alignment) {
    case TextAlignment::left:
        return 0;
    case TextAlignment::center:
        return space / 2;
    case TextAlignment::right:
        return space;
    case TextAlignment::justified:
    case TextAlignment::natural:
        break;
    }
    return pango_layout_line_get_resolved_direction(line) == PANGO_DIRECTION_RTL ? space : 0;
}

/// The lines that fit, at least one, centred as a block from top to bottom.
void TextLayout::placeLines()
{
    const LineIteratorPointer iterator(pango_layout_get_iter(m_layout.get()));
    const int lineLimit = m_text.numberOfLines > 0 ? m_text.numberOfLines : G_MAXINT;
    double height = 0;
    do {
        PangoLayoutLine* line = pango_layout_iter_get_line_readonly(iterator.get());
        PangoRectangle ink;
        PangoRectangle logical;
        pango_layout_line_get_extents(line, &ink, &logical);
        const double lineHeight = fromPango(logical.height);
        if (!m_lines.empty() && m_bounds.height > 0 && height + lineHeight > m_bounds.height + 0.5)
            break;
        const double width = fromPango(logical.width);
        const Point origin = {horizontalOffset(line, width) - fromPango(logical.x), height - fromPango(logical.y)};
        m_lines.push_back({PangoLinePointer(pango_layout_line_ref(line)), origin});
        m_usedSize.width = std::max(m_usedSize.width, width);
        height += lineHeight;
        Rect inkRect = fromPango(ink);
        inkRect.x += origin.x;
        inkRect.y += origin.y;
        m_inkBounds = m_inkBounds.unionWith(inkRect);
    } while (static_cast<int>(m_lines.size()) < lineLimit && pango_layout_iter_next_line(iterator.get()));
    m_usedSize.height = height;

    const double top = m_bounds.height > 0 ? (m_bounds.height - height) / 2 : 0;
    m_inkBounds.y += top;
    for (auto& placed : m_lines) {
        placed.origin.y += top;
        placeAttachments(placed);
    }
}

void TextLayout::placeAttachments(const PlacedLine& placed)
{
    double x = placed.origin.x;
    for (GSList* node = placed.line->runs; node; node = node->next) {
        const auto* run = static_cast<PangoLayoutRun*>(node->data);
        const auto* range = m_content.at(run->item->offset);
        if (range && range->run->attachment && !isEllipsis(run->item)) {
            const TextAttachment& attachment = *range->run->attachment;
            const Rect bounds = usableBounds(attachment.bounds);
            const Rect rect = {x + bounds.x, placed.origin.y - bounds.y - bounds.height, bounds.width, bounds.height};
            const auto tint = attachment.isTemplate ? std::optional(range->run->color) : std::nullopt;
            m_attachments.push_back({attachment.image, rect, tint});
        }
        x += fromPango(pango_glyph_string_get_width(run->glyphs));
    }
}

void TextLayout::draw(cairo_t* canvas, double opacity) const
{
    for (const auto& placed : m_lines) {
        double x = placed.origin.x;
        for (GSList* node = placed.line->runs; node; node = node->next) {
            auto* run = static_cast<PangoLayoutRun*>(node->data);
            const auto* range = m_content.at(run->item->offset);
            const bool isPicture = range && range->run->attachment && !isEllipsis(run->item);
            if (range && !isPicture) {
                const Color color = range->run->color.clamped();
                cairo_set_source_rgba(canvas, color.r, color.g, color.b, color.a * opacity);
                cairo_move_to(canvas, x, placed.origin.y);
                pango_cairo_show_glyph_item(canvas, m_content.string.c_str(), run);
            }
            x += fromPango(pango_glyph_string_get_width(run->glyphs));
        }
    }
}

bool TextLayout::isWhole() const
{
    constexpr double tolerance = 0.5;
    return !pango_layout_is_ellipsized(m_layout.get())
        && static_cast<int>(m_lines.size()) == pango_layout_get_line_count(m_layout.get())
        && m_usedSize.width <= m_bounds.width + tolerance && m_usedSize.height <= m_bounds.height + tolerance;
}

Size measure(FontCatalogue& catalogue, const Text& text, Size limit, double scale)
{
    Text measured = text;
    measured.adjustsFontSizeToFitWidth = false;
    if (!(scale > 0) || !std::isfinite(scale))
        scale = 1;
    const auto layout = TextLayout::make(catalogue.typesetter(), measured, limit, scale);
    if (!layout)
        return {};
    const auto roundUp = [scale](double length) { return std::ceil(length * scale - 1e-3) / scale; };
    return {roundUp(layout->usedSize().width), roundUp(layout->usedSize().height)};
}

bool fits(FontCatalogue& catalogue, const Text& text, Size bounds, double scale)
{
    const auto layout = TextLayout::make(catalogue.typesetter(), text, bounds, scale);
    return !layout || layout->isWhole();
}

}
