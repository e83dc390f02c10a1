// Bounds and digests of groups.
#include "Simulator/Graphics/DisplayGroup.hpp"

#include "Simulator/Graphics/Blur.hpp"
#include "Simulator/Graphics/Hasher.hpp"

#include <cmath>

namespace Simulator::Graphics {

namespace {

constexpr double largestShadowReach = 4'096;

PixelRect shadowBounds(const PixelRect& content, const CastShadow& shadow)
{
    PixelRect bounds = content.grownBy(blurExtent(shadow.sigma));
    bounds.x += shadow.dx;
    bounds.y += shadow.dy;
    return bounds;
}

}

double scaleOf(const AffineTransform& transform)
{
    return std::sqrt(std::abs(transform.a * transform.d - transform.b * transform.c));
}

std::optional<CastShadow> castShadow(const Layer& layer, const AffineTransform& transform)
{
    const Color color = layer.shadow.color.clamped();
    const double opacity = Color{0, 0, 0, layer.shadow.opacity}.clamped().a * color.a;
    const AffineTransform linear = {transform.a, transform.b, transform.c, transform.d, 0, 0};
    const Point offset = linear.apply(Point{layer.shadow.offset.width, layer.shadow.offset.height});
    const bool isReachable = std::abs(offset.x) <= largestShadowReach && std::abs(offset.y) <= largestShadowReach;
    if (opacity == 0 || layer.clipsToBounds || !isReachable)
        return std::nullopt;
    const double sigma = layer.shadow.radius > 0 ? layer.shadow.radius * scaleOf(transform) : 0;
    return CastShadow{color.withAlpha(opacity), sigma, static_cast<int>(std::lround(offset.x)),
        static_cast<int>(std::lround(offset.y))};
}

PixelRect clipWithShadow(const PixelRect& clip, const CastShadow& shadow)
{
    return clip.unionWith(shadowBounds(clip, {shadow.color, shadow.sigma, -shadow.dx, -shadow.dy}));
}

void summarize(DisplayItem& item)
{
    auto& group = std::get<Group>(item.content);
    Hasher items;
    PixelRect content;
    for (const auto& child : group.items) {
        items.add(child.hash);
        content = content.unionWith(child.bounds);
    }
    PixelRect extents = content;
    Hasher own;
    own.add(item.opacity);
    own.add(group.mask.has_value());
    if (group.mask) {
        own.add(item.transform);
        own.addAll(group.mask->rect, group.mask->radius);
        extents = PixelRect::around(item.transform.apply(group.mask->rect));
    }
    own.add(group.shadow.has_value());
    if (const auto& shadow = group.shadow) {
        own.addAll(shadow->color, shadow->sigma, shadow->dx, shadow->dy);
        extents = extents.unionWith(shadowBounds(content, *shadow));
    }
    group.contentBounds = content;
    group.contentHash = items.result();
    item.isClipped = !item.bounds.contains(extents);
    item.bounds = item.bounds.intersectionWith(extents);
    own.add(item.isClipped);
    if (item.isClipped || group.mask)
        own.add(item.bounds);
    group.ownHash = own.result();
    item.hash = hashOf(group.ownHash, group.contentHash);
    if (group.mask)
        item.bitmapKey
            = hashOf(std::string_view("mask"), item.transform, group.mask->rect, group.mask->radius, item.bounds);
    if (group.shadow)
        item.bitmapKey = hashOf(group.contentHash, group.contentBounds, group.shadow->sigma);
}

void addGroup(Group group, const AffineTransform& transform, double opacity, const PixelRect& clip, DisplayList& out)
{
    DisplayItem item;
    item.transform = transform;
    item.opacity = opacity;
    item.bounds = clip;
    item.content = std::move(group);
    summarize(item);
    if (!item.bounds.isEmpty())
        out.push_back(std::move(item));
}

}
