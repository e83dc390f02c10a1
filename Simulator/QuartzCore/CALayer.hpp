// What lies under a view: its geometry, corners, border and shadow, and the layers that hang in it without views.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/QuartzCore/CALayer.hpp"
#include "Simulator/Graphics/Layer.hpp"
#include "Simulator/QuartzCore/LayerMotion.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <vector>

namespace Simulator {

/// The opaque black that borders and shadows have by default, as a CGColor.
ObjC::Object opaqueBlack();

/// The values of a layer. A view keeps those of its own layer, so that the layer object is made only when asked for.
struct LayerProperties {
    CGRect bounds;
    CGPoint position;
    CGAffineTransform transform = CGAffineTransformIdentity;
    double opacity = 1;
    bool hidden = false;
    bool masksToBounds = false;
    double cornerRadius = 0;
    double borderWidth = 0;
    float shadowOpacity = 0;
    double shadowRadius = 3;
    CGSize shadowOffset = {0, -3};
    /// Each a CGColor or nil.
    ObjC::Object backgroundColor;
    ObjC::Object borderColor = opaqueBlack();
    ObjC::Object shadowColor = opaqueBlack();
    /// The animations that are on their way.
    std::vector<LayerMotion> motions;

    CGRect frame() const;
    /// Keeps the transform: the bounds get the size that it turns into the frame's.
    void setFrame(CGRect frame);
};

struct CALayer : StandIn {
    using Root = CALayer;

    ~CALayer() override;

    /// The view's, or its own if it stands under no view; an animation that is being made takes note of a change.
    LayerProperties& properties();
    const LayerProperties& properties() const { return viewProperties ? *viewProperties : ownProperties; }
    /// The view dies: its values stay with the layer.
    void detachFromView();

    /// What the layer shows besides its decoration; kinds of layers override it.
    virtual Graphics::LayerContent layerContent() const { return {}; }

    CGRect frame() const { return properties().frame(); }
    void setFrame(CGRect frame);
    CGRect bounds() const { return properties().bounds; }
    void setBounds(CGRect bounds);
    CGPoint position() const { return properties().position; }
    void setPosition(CGPoint position);
    CGAffineTransform affineTransform() const { return properties().transform; }
    void setAffineTransform(CGAffineTransform transform);
    float opacity() const { return static_cast<float>(properties().opacity); }
    void setOpacity(float opacity) { properties().opacity = opacity; }
    bool isHidden() const { return properties().hidden; }
    void setHidden(bool hidden) { properties().hidden = hidden; }
    bool masksToBounds() const { return properties().masksToBounds; }
    void setMasksToBounds(bool masks) { properties().masksToBounds = masks; }
    double cornerRadius() const { return properties().cornerRadius; }
    void setCornerRadius(double radius) { properties().cornerRadius = radius; }
    double borderWidth() const { return properties().borderWidth; }
    void setBorderWidth(double width) { properties().borderWidth = width; }
    float shadowOpacity() const { return properties().shadowOpacity; }
    void setShadowOpacity(float opacity) { properties().shadowOpacity = opacity; }
    double shadowRadius() const { return properties().shadowRadius; }
    void setShadowRadius(double radius) { properties().shadowRadius = radius; }
    CGSize shadowOffset() const { return properties().shadowOffset; }
    void setShadowOffset(CGSize offset) { properties().shadowOffset = offset; }
    CGColorRef backgroundColor() const { return colorReference(properties().backgroundColor); }
    void setBackgroundColor(CGColorRef color);
    CGColorRef borderColor() const { return colorReference(properties().borderColor); }
    void setBorderColor(CGColorRef color);
    CGColorRef shadowColor() const { return colorReference(properties().shadowColor); }
    void setShadowColor(CGColorRef color);

    void addSublayer(const CA::Layer& layer);
    void insertSublayerAtIndex(const CA::Layer& layer, unsigned index);
    void removeFromSuperlayer();
    CA::Layer superlayer() const { return superlayerReference ? superlayerReference->self<CA::Layer>() : CA::Layer(); }
    NS::Array sublayersArray() const;

    LayerProperties* viewProperties = nullptr;
    /// Not retained.
    id viewObject = nullptr;
    LayerProperties ownProperties;
    CALayer* superlayerReference = nullptr;
    /// Layers without views, back to front; they lie behind the subviews.
    std::vector<CA::Layer> sublayers;

private:
    static CGColorRef colorReference(const ObjC::Object& color) { return reinterpret_cast<CGColorRef>(color.raw()); }
    bool isOrContains(const CALayer& other) const;
};

}
