// A layer that runs from colour to colour.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/QuartzCore/CALayer.hpp"

namespace CA {

class GradientLayer : public ObjC::Class_<GradientLayer, Layer, "CAGradientLayer"> {
public:
    using Class_::Class_;

    static GradientLayer layer() { return sendClass<GradientLayer, "layer">(); }
    /// Each element a colour of the drawing library.
    void setColors(const NS::Array& colors) const { send<void, "setColors:">(colors); }
    template <class... Colors>
    void setColorsOf(const Colors&... colors) const
    {
        setColors(NS::Array::of(ObjC::Object(reinterpret_cast<id>(colors.CGColor()))...));
    }
    NS::Array colors() const { return send<NS::Array, "colors">(); }
    /// Where each colour stands, numbers that rise from 0 to 1; evenly spread if nil.
    void setLocations(const NS::Array& locations) const { send<void, "setLocations:">(locations); }
    /// In units of the bounds; from the middle of the top to the middle of the bottom unless set.
    void setStartPoint(CGPoint point) const { send<void, "setStartPoint:">(point); }
    CGPoint startPoint() const { return send<CGPoint, "startPoint">(); }
    void setEndPoint(CGPoint point) const { send<void, "setEndPoint:">(point); }
    CGPoint endPoint() const { return send<CGPoint, "endPoint">(); }
};

}
