// The layer object. Its geometry changes a view's the same way as the view's own setters do.
#include "Simulator/QuartzCore/CALayer.hpp"

#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/QuartzCore/LayerTransaction.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator {

ObjC::Object opaqueBlack()
{
    static constinit ObjC::Variable<ObjC::Object> black;
    if (!black)
        black = makeCGColor(ColorComponents::grey(0, 1));
    return black;
}

CGRect LayerProperties::frame() const
{
    const CGSize size = bounds.size;
    if (transform == CGAffineTransformIdentity)
        return {{position.x - size.width / 2, position.y - size.height / 2}, size};
    Graphics::AffineTransform linear = toGraphics(transform);
    linear.tx += position.x;
    linear.ty += position.y;
    return fromGraphics(linear.apply(Graphics::Rect{-size.width / 2, -size.height / 2, size.width, size.height}));
}

void LayerProperties::setFrame(CGRect frame)
{
    position = {frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2};
    if (transform == CGAffineTransformIdentity) {
        bounds.size = frame.size;
        return;
    }
    Graphics::AffineTransform linear = toGraphics(transform);
    position.x -= std::exchange(linear.tx, 0);
    position.y -= std::exchange(linear.ty, 0);
    if (const auto inverse = linear.inverted())
        bounds.size = fromGraphics(inverse->apply(Graphics::Rect{0, 0, frame.size.width, frame.size.height})).size;
}

CALayer::~CALayer()
{
    for (const CA::Layer& layer : sublayers)
        standIn<CALayer>(layer.raw()).superlayerReference = nullptr;
}

LayerProperties& CALayer::properties()
{
    if (viewProperties)
        noteLayerChange(*viewProperties, viewObject);
    return viewProperties ? *viewProperties : ownProperties;
}

void CALayer::detachFromView()
{
    viewObject = nullptr;
    ownProperties = *viewProperties;
    viewProperties = nullptr;
}

void CALayer::setFrame(CGRect frame)
{
    if (isFinite(frame))
        properties().setFrame(frame);
}

void CALayer::setBounds(CGRect bounds)
{
    if (isFinite(bounds))
        properties().bounds = bounds;
}

void CALayer::setPosition(CGPoint position)
{
    if (isFinite(position))
        properties().position = position;
}

void CALayer::setAffineTransform(CGAffineTransform transform)
{
    if (toGraphics(transform).isFinite())
        properties().transform = transform;
}

void CALayer::setBackgroundColor(CGColorRef color)
{
    properties().backgroundColor = ObjC::Object(reinterpret_cast<id>(color));
}

void CALayer::setBorderColor(CGColorRef color)
{
    properties().borderColor = ObjC::Object(reinterpret_cast<id>(color));
}

void CALayer::setShadowColor(CGColorRef color)
{
    properties().shadowColor = ObjC::Object(reinterpret_cast<id>(color));
}

bool CALayer::isOrContains(const CALayer& other) const
{
    for (const CALayer* layer = &other; layer; layer = layer->superlayerReference) {
        if (layer == this)
            return true;
    }
    return false;
}

void CALayer::addSublayer(const CA::Layer& layer)
{
    insertSublayerAtIndex(layer, static_cast<unsigned>(sublayers.size()));
}

void CALayer::insertSublayerAtIndex(const CA::Layer& layer, unsigned index)
{
    auto* child = standInOrNull<CALayer>(layer);
    if (!child || child->viewProperties || child->isOrContains(*this))
        return;
    child->removeFromSuperlayer();
    sublayers.insert(sublayers.begin() + std::min<std::size_t>(index, sublayers.size()), layer);
    child->superlayerReference = this;
}

void CALayer::removeFromSuperlayer()
{
    if (!superlayerReference)
        return;
    const auto kept = self<CA::Layer>();
    std::erase(std::exchange(superlayerReference, nullptr)->sublayers, kept);
}

NS::Array CALayer::sublayersArray() const
{
    auto array = NS::MutableArray::make();
    for (const CA::Layer& layer : sublayers)
        array.addObject(layer);
    return array;
}

/// A new layer of whichever class was asked.
static id makeLayer(id type, SEL)
{
    const id allocated = ObjC::sendMessage<id>(type, ObjC::selector<"alloc">());
    return ObjC::autorelease(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
}

static const StandInClass caLayer("CALayer", "NSObject", [](Binder<CALayer>& binder) {
    const Class type = binder.def<"frame", &CALayer::frame>()
                           .def<"setFrame:", &CALayer::setFrame>()
                           .def<"bounds", &CALayer::bounds>()
                           .def<"setBounds:", &CALayer::setBounds>()
                           .def<"position", &CALayer::position>()
                           .def<"setPosition:", &CALayer::setPosition>()
                           .def<"affineTransform", &CALayer::affineTransform>()
                           .def<"setAffineTransform:", &CALayer::setAffineTransform>()
                           .def<"opacity", &CALayer::opacity>()
                           .def<"setOpacity:", &CALayer::setOpacity>()
                           .def<"isHidden", &CALayer::isHidden>()
                           .def<"setHidden:", &CALayer::setHidden>()
                           .def<"masksToBounds", &CALayer::masksToBounds>()
                           .def<"setMasksToBounds:", &CALayer::setMasksToBounds>()
                           .def<"cornerRadius", &CALayer::cornerRadius>()
                           .def<"setCornerRadius:", &CALayer::setCornerRadius>()
                           .def<"borderWidth", &CALayer::borderWidth>()
                           .def<"setBorderWidth:", &CALayer::setBorderWidth>()
                           .def<"borderColor", &CALayer::borderColor>()
                           .def<"setBorderColor:", &CALayer::setBorderColor>()
                           .def<"backgroundColor", &CALayer::backgroundColor>()
                           .def<"setBackgroundColor:", &CALayer::setBackgroundColor>()
                           .def<"shadowOpacity", &CALayer::shadowOpacity>()
                           .def<"setShadowOpacity:", &CALayer::setShadowOpacity>()
                           .def<"shadowColor", &CALayer::shadowColor>()
                           .def<"setShadowColor:", &CALayer::setShadowColor>()
                           .def<"shadowRadius", &CALayer::shadowRadius>()
                           .def<"setShadowRadius:", &CALayer::setShadowRadius>()
                           .def<"shadowOffset", &CALayer::shadowOffset>()
                           .def<"setShadowOffset:", &CALayer::setShadowOffset>()
                           .def<"addSublayer:", &CALayer::addSublayer>()
                           .def<"insertSublayer:atIndex:", &CALayer::insertSublayerAtIndex>()
                           .def<"removeFromSuperlayer", &CALayer::removeFromSuperlayer>()
                           .def<"superlayer", &CALayer::superlayer>()
                           .def<"sublayers", &CALayer::sublayersArray>()
                           .add();
    class_addMethod(object_getClass(reinterpret_cast<id>(type)), ObjC::selector<"layer">(),
        reinterpret_cast<IMP>(&makeLayer), "@@:");
});

}
