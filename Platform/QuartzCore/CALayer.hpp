// What lies under a view: geometry, corners, border, shadow, and layers of its own.
#pragma once

#include "Platform/CoreGraphics/CGColor.hpp"
#include "Platform/Foundation/NSObject.hpp"

namespace CA {

class Layer : public ObjC::Class_<Layer, NS::Object, "CALayer"> {
public:
    using Class_::Class_;

    static Layer layer() { return sendClass<Layer, "layer">(); }
    CGRect frame() const { return send<CGRect, "frame">(); }
    void setFrame(CGRect frame) const { send<void, "setFrame:">(frame); }
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    void setBounds(CGRect bounds) const { send<void, "setBounds:">(bounds); }
    void setOpacity(float opacity) const { send<void, "setOpacity:">(opacity); }
    void setHidden(bool hidden) const { send<void, "setHidden:">(hidden); }
    void setBackgroundColor(CGColorRef color) const { send<void, "setBackgroundColor:">(color); }
    CGColorRef backgroundColor() const { return send<CGColorRef, "backgroundColor">(); }
    void setMasksToBounds(bool masks) const { send<void, "setMasksToBounds:">(masks); }
    void addSublayer(const Layer& layer) const { send<void, "addSublayer:">(layer); }
    void insertSublayerAtIndex(const Layer& layer, unsigned index) const
    {
        send<void, "insertSublayer:atIndex:">(layer, index);
    }
    void removeFromSuperlayer() const { send<void, "removeFromSuperlayer">(); }

    void setCornerRadius(CGFloat radius) const { send<void, "setCornerRadius:">(radius); }
    CGFloat cornerRadius() const { return send<CGFloat, "cornerRadius">(); }
    void setBorderWidth(CGFloat width) const { send<void, "setBorderWidth:">(width); }
    CGFloat borderWidth() const { return send<CGFloat, "borderWidth">(); }
    void setBorderColor(CGColorRef color) const { send<void, "setBorderColor:">(color); }
    CGColorRef borderColor() const { return send<CGColorRef, "borderColor">(); }
    void setShadowOpacity(float opacity) const { send<void, "setShadowOpacity:">(opacity); }
    float shadowOpacity() const { return send<float, "shadowOpacity">(); }
    void setShadowColor(CGColorRef color) const { send<void, "setShadowColor:">(color); }
    CGColorRef shadowColor() const { return send<CGColorRef, "shadowColor">(); }
    void setShadowRadius(CGFloat radius) const { send<void, "setShadowRadius:">(radius); }
    CGFloat shadowRadius() const { return send<CGFloat, "shadowRadius">(); }
    void setShadowOffset(CGSize offset) const { send<void, "setShadowOffset:">(offset); }
    CGSize shadowOffset() const { return send<CGSize, "shadowOffset">(); }
};

}
