// What lies under a view: corners, border, shadow.
#pragma once

#include "Platform/CoreGraphics/CGColor.hpp"
#include "Platform/Foundation/NSObject.hpp"

namespace CA {

class Layer : public ObjC::Class_<Layer, NS::Object, "CALayer"> {
public:
    using Class_::Class_;

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
