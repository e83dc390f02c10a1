// Translates views and layers into the compositor's values.
#include "Simulator/UIKit/LayerTree.hpp"

#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/QuartzCore/LayerTransaction.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/UIColor.hpp"

#include <algorithm>
#include <iterator>

namespace Simulator {

namespace {

/// What fades out is there until it is gone.
bool isShown(const LayerProperties& properties)
{
    return !properties.hidden && (properties.opacity > 0 || hasMotions(properties));
}

std::optional<Graphics::Color> colorOf(const ObjC::Object& color)
{
    return resolvedColor(reinterpret_cast<CGColorRef>(color.raw()));
}

Graphics::Layer decorated(const LayerProperties& properties)
{
    Graphics::Layer layer;
    layer.position = {properties.position.x, properties.position.y};
    layer.bounds = toGraphics(properties.bounds);
    layer.transform = toGraphics(properties.transform);
    layer.opacity = properties.opacity;
    layer.clipsToBounds = properties.masksToBounds;
    layer.backgroundColor = colorOf(properties.backgroundColor);
    layer.cornerRadius = properties.cornerRadius;
    if (const auto color = colorOf(properties.borderColor)) {
        layer.borderWidth = properties.borderWidth;
        layer.borderColor = *color;
    }
    if (const auto color = colorOf(properties.shadowColor))
        layer.shadow = {properties.shadowOpacity, *color, properties.shadowRadius,
            {properties.shadowOffset.width, properties.shadowOffset.height}};
    return layer;
}

void showMotions(Graphics::Layer& layer, const LayerProperties& properties)
{
    for (const LayerMotion& motion : properties.motions)
        motion.apply(layer, Loop::shared().uptime());
}

/// The layers without views that hang in another, with all that hangs in them.
std::vector<Graphics::Layer> buildSublayers(const CALayer& parent)
{
    std::vector<Graphics::Layer> layers;
    for (const CA::Layer& child : parent.sublayers) {
        const auto& sublayer = standIn<CALayer>(child.raw());
        if (!isShown(sublayer.properties()))
            continue;
        Graphics::Layer layer = decorated(sublayer.properties());
        layer.content = sublayer.layerContent();
        layer.children = buildSublayers(sublayer);
        layers.push_back(std::move(layer));
    }
    return layers;
}

}

Graphics::Layer buildLayer(UIView& root)
{
    Graphics::Layer layer = decorated(root.properties);
    // A colour of the system follows the appearance; the layer's own copy does not.
    if (const auto color = resolvedColor(root.backgroundColor()))
        layer.backgroundColor = color;
    showMotions(layer, root.properties);
    layer.content = root.layerContent();
    root.decorate(layer);
    if (const CALayer* made = root.layerIfMade())
        std::ranges::move(buildSublayers(*made), std::back_inserter(layer.children));
    for (const UI::View& child : root.children) {
        auto& subview = standIn<UIView>(child.raw());
        if (isShown(subview.properties))
            layer.children.push_back(buildLayer(subview));
    }
    return layer;
}

}
