// A layer that runs from colour to colour.
#pragma once

#include "Platform/QuartzCore/CAGradientLayer.hpp"
#include "Simulator/QuartzCore/CALayer.hpp"

namespace Simulator {

struct CAGradientLayer : CALayer {
    Graphics::LayerContent layerContent() const override;
    void setColors(const NS::Array& array);
    void setLocations(const NS::Array& array);

    NS::Array colors;
    NS::Array locations;
    CGPoint startPoint = {0.5, 0};
    CGPoint endPoint = {0.5, 1};
};

}
