// The rules of what a layer draws and in which order.
#include "Simulator/Graphics/DisplayListBuilder.hpp"

#include "Simulator/Graphics/Blur.hpp"
#include "Simulator/Graphics/DisplayGroup.hpp"
#include "Simulator/Graphics/Hasher.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

constexpr int depthLimit = 200;
/// Drawing far outside the screen is cut to this margin, within the numbers that the rasteriser can hold.
constexpr int outerMargin = 8'192;

Rect toRect(const PixelRect& rect)
{
    return {double(rect.x), double(rect.y), double(rect.width), double(rect.height)};
}

Rect intersection(const Rect& one, const Rect& other)
{
    const double x = std::max(one.x, other.x);
    const double y = std::max(one.y, other.y);
    return {x, y, std::min(one.right(), other.right()) - x, std::min(one.bottom(), other.bottom()) - y};
}

/// The part of a shape that can matter; a shape of ordinary size is kept as it is.
Rect cutToReach(const Rect& rect, const AffineTransform& transform, const PixelRect& clip)
{
    const PixelRect reach = clip.grownBy(outerMargin);
    const Rect pixels = transform.apply(rect);
    const auto inverse = transform.inverted();
    if (!inverse || reach.contains(PixelRect::around(pixels)))
        return rect;
    return intersection(rect, inverse->apply(toRect(reach)));
}

double usableRadius(double radius, const Rect& rect)
{
    if (!(radius > 0))
        return 0;
    return std::min({radius, rect.width / 2, rect.height / 2});
}

RoundedRect shapeOf(const Layer& layer, const AffineTransform& transform, const PixelRect& clip)
{
    return {cutToReach(layer.bounds, transform, clip), usableRadius(layer.cornerRadius, layer.bounds)};
}

/// Adds the item unless nothing of it can be seen.
bool finish(DisplayItem& item, const PixelRect& extents, const PixelRect& clip, DisplayList& out)
{
    item.bounds = extents.intersectionWith(clip);
    if (item.bounds.isEmpty())
        return false;
    item.isClipped = !clip.contains(extents);
    out.push_back(std::move(item));
    return true;
}

Rect contentRect(ContentMode mode, Size size, const Rect& bounds)
{
    const double horizontal = bounds.width / size.width;
    const double vertical = bounds.height / size.height;
    double factor = 1;
    switch (mode) {
    case ContentMode::scaleToFill:
        return bounds;
    case ContentMode::aspectFit:
        factor = std::min(horizontal, vertical);
        break;
    case ContentMode::aspectFill:
        factor = std::max(horizontal, vertical);
        break;
    case ContentMode::center:
        break;
    }
    const Size shown = {size.width * factor, size.height * factor};
    return {bounds.center().x - shown.width / 2, bounds.center().y - shown.height / 2, shown.width, shown.height};
}

bool canFadeAlone(const DisplayList& items)
{
    return items.size() == 1 && !std::holds_alternative<Group>(items.front().content);
}

}

DisplayListBuilder::DisplayListBuilder(TextCache& texts, double scale, const PixelRect& screen)
    : m_texts(texts)
    , m_scale(scale)
    , m_screen(screen)
{
}

DisplayList DisplayListBuilder::build(const Layer& root)
{
    DisplayList list;
    add(root, {AffineTransform::scale(m_scale, m_scale), m_screen}, 0, list);
    return list;
}

void DisplayListBuilder::add(const Layer& layer, const Place& parent, int depth, DisplayList& out)
{
    const double opacity = Color{0, 0, 0, layer.opacity}.clamped().a;
    const AffineTransform transform = layer.toParent().concat(parent.transform);
    if (opacity == 0 || depth > depthLimit || !transform.isFinite() || !layer.bounds.isFinite()
        || !transform.inverted())
        return;
    const auto shadow = castShadow(layer, transform);
    const PixelRect clip = shadow ? clipWithShadow(parent.clip, *shadow) : parent.clip;
    DisplayList body;
    addBody(layer, {transform, clip}, depth, body);
    if (body.empty())
        return;
    if (!shadow && opacity < 1 && canFadeAlone(body)) {
        body.front().opacity *= opacity;
        body.front().hash = hashOf(body.front().hash, opacity);
        out.push_back(std::move(body.front()));
    } else if (shadow || opacity < 1) {
        Group group;
        group.items = std::move(body);
        group.shadow = shadow;
        addGroup(std::move(group), transform, opacity, parent.clip, out);
    } else {
        std::move(body.begin(), body.end(), std::back_inserter(out));
    }
}

/// Background, content and children, border: content and children are what a clipping layer cuts.
void DisplayListBuilder::addBody(const Layer& layer, const Place& place, int depth, DisplayList& out)
{
    const RoundedRect shape = shapeOf(layer, place.transform, place.clip);
    if (layer.backgroundColor)
        addFill(shape, 0, *layer.backgroundColor, place, out);

    Place inner = place;
    const bool needsMask = layer.clipsToBounds && (shape.radius > 0 || !place.transform.isScaleAndTranslation());
    if (layer.clipsToBounds) {
        const Rect pixels = place.transform.apply(layer.bounds);
        const PixelRect cut = needsMask ? PixelRect::around(pixels) : PixelRect::nearest(pixels);
        inner.clip = inner.clip.intersectionWith(cut);
    }
    DisplayList items;
    if (!inner.clip.isEmpty()) {
        addContent(layer, inner, items);
        for (const auto& child : layer.children)
            add(child, inner, depth + 1, items);
    }
    if (needsMask && !items.empty()) {
        Group group;
        group.items = std::move(items);
        group.mask = shape;
        addGroup(std::move(group), place.transform, 1, inner.clip, out);
    } else {
        std::move(items.begin(), items.end(), std::back_inserter(out));
    }
    if (layer.borderWidth > 0)
        addFill(shape, layer.borderWidth, layer.borderColor, place, out);
}

void DisplayListBuilder::addFill(
    const RoundedRect& shape, double ringWidth, const Color& color, const Place& place, DisplayList& out)
{
    const Color shown = color.clamped();
    if (shown.a == 0 || shape.rect.isEmpty())
        return;
    DisplayItem item;
    item.transform = place.transform;
    item.content = Fill{shape, ringWidth, shown};
    if (!finish(item, PixelRect::around(place.transform.apply(shape.rect)), place.clip, out))
        return;
    Hasher hasher;
    hasher.addAll(std::string_view("fill"), place.transform, ringWidth, out.back().bounds);
    hasher.addAll(shape.rect, shape.radius);
    out.back().hash = hashOf(hasher.result(), shown);
    // Where soft edges run depends on what the rasteriser is clipped to; from a bitmap, every redraw has the same.
    if (shape.radius > 0 || !place.transform.isScaleAndTranslation())
        out.back().bitmapKey = hasher.result();
}

void DisplayListBuilder::addContent(const Layer& layer, const Place& place, DisplayList& out)
{
    if (layer.bounds.isEmpty())
        return;
    const RoundedRect shape = shapeOf(layer, place.transform, place.clip);
    if (const auto* text = std::get_if<Text>(&layer.content))
        addText(*text, layer.bounds, place, out);
    else if (const auto* image = std::get_if<ImageContent>(&layer.content))
        addImage(*image, layer.bounds, place, out);
    else if (const auto* gradient = std::get_if<Gradient>(&layer.content))
        addGradient(*gradient, layer.bounds, shape, place, out);
    else if (const auto* blur = std::get_if<BackdropBlur>(&layer.content))
        addBackdrop(*blur, shape, place, out);
}

void DisplayListBuilder::addText(const Text& text, const Rect& bounds, const Place& outer, DisplayList& out)
{
    const auto [layout, hash] = m_texts.find(text, bounds.size());
    if (!layout)
        return;
    Place place = outer;
    place.transform = AffineTransform::translation(bounds.x, bounds.y).concat(outer.transform);
    if (text.lineBreakMode == LineBreakMode::clip && outer.transform.isScaleAndTranslation())
        place.clip = place.clip.intersectionWith(PixelRect::around(outer.transform.apply(bounds)));
    DisplayItem item;
    item.transform = place.transform;
    item.content = Glyphs{layout};
    // Glyphs are moved to whole pixels and have soft edges.
    const PixelRect extents = PixelRect::around(place.transform.apply(layout->inkBounds())).grownBy(2);
    if (!layout->inkBounds().isEmpty() && finish(item, extents, place.clip, out))
        out.back().hash = hashOf(std::string_view("text"), hash, place.transform, out.back().bounds);
    for (const auto& attachment : layout->attachments())
        addPicture(attachment.image, attachment.rect, attachment.tint, place, out);
}

void DisplayListBuilder::addImage(const ImageContent& content, const Rect& bounds, const Place& place, DisplayList& out)
{
    if (!content.image)
        return;
    const double scale = content.scale > 0 && std::isfinite(content.scale) ? content.scale : 1;
    const Size size = {content.image->size().width / scale, content.image->size().height / scale};
    if (size.width > 0 && size.height > 0)
        addPicture(content.image, contentRect(content.mode, size, bounds), content.tint, place, out);
}

void DisplayListBuilder::addPicture(const Image::Pointer& image, const Rect& rect, const std::optional<Color>& tint,
    const Place& place, DisplayList& out)
{
    if (!image || rect.isEmpty() || !rect.isFinite())
        return;
    Picture picture{image, rect, std::nullopt, {}};
    if (tint)
        picture.tint = tint->clamped();
    const Rect pixels = place.transform.apply(rect);
    PixelRect extents = PixelRect::around(pixels).grownBy(1);
    if (place.transform.isScaleAndTranslation()) {
        extents = PixelRect::nearest(pixels);
        extents.width = std::max(extents.width, 1);
        extents.height = std::max(extents.height, 1);
        picture.place = extents;
    }
    DisplayItem item;
    item.transform = place.transform;
    const PixelRect wholePlace = picture.place;
    item.content = std::move(picture);
    if (!finish(item, extents, place.clip, out))
        return;
    DisplayItem& added = out.back();
    Hasher hasher;
    hasher.addAll(std::string_view("picture"), image->identity(), added.bounds, wholePlace);
    if (wholePlace.isEmpty())
        hasher.addAll(rect, place.transform);
    added.bitmapKey = hasher.result();
    added.hash = hashOf(added.bitmapKey, tint);
}

void DisplayListBuilder::addGradient(
    const Gradient& gradient, const Rect& area, const RoundedRect& shape, const Place& place, DisplayList& out)
{
    if (gradient.colors.empty())
        return;
    DisplayItem item;
    item.transform = place.transform;
    item.content = GradientFill{shape, area, gradient};
    if (!finish(item, PixelRect::around(place.transform.apply(shape.rect)), place.clip, out))
        return;
    Hasher hasher;
    hasher.addAll(std::string_view("gradient"), place.transform, gradient.start, gradient.end, area, out.back().bounds,
        gradient.colors.size());
    for (const auto& color : gradient.colors)
        hasher.add(color);
    for (const double location : gradient.locations)
        hasher.add(location);
    hasher.addAll(shape.rect, shape.radius);
    out.back().bitmapKey = out.back().hash = hasher.result();
}

/// What is behind belongs to its looks, too; that is added when the list is complete.
void DisplayListBuilder::addBackdrop(
    const BackdropBlur& blur, const RoundedRect& shape, const Place& place, DisplayList& out)
{
    const double sigma = blur.radius > 0 ? blur.radius * scaleOf(place.transform) : 0;
    const PixelRect extents = PixelRect::around(place.transform.apply(shape.rect));
    DisplayItem item;
    item.transform = place.transform;
    item.content = Backdrop{shape, blur.tint.clamped(), sigma, {}};
    if (!finish(item, extents, place.clip.intersectionWith(m_screen), out))
        return;
    DisplayItem& added = out.back();
    std::get<Backdrop>(added.content).input = added.bounds.grownBy(blurExtent(sigma)).intersectionWith(m_screen);
    Hasher hasher;
    hasher.addAll(std::string_view("backdrop"), place.transform, sigma, blur.tint.clamped(), added.bounds);
    hasher.addAll(shape.rect, shape.radius);
    added.bitmapKey = added.hash = hasher.result();
}

}
