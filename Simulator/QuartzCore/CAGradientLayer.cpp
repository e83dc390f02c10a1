// Gradient layers, drawn from edge to edge.
#include "Simulator/QuartzCore/CAGradientLayer.hpp"

#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

void CAGradientLayer::setColors(const NS::Array& array)
{
    colors = array.as<NS::Array>().send<NS::Array, "copy">();
}

void CAGradientLayer::setLocations(const NS::Array& array)
{
    locations = array.as<NS::Array>().send<NS::Array, "copy">();
}

Graphics::LayerContent CAGradientLayer::layerContent() const
{
    Graphics::Gradient gradient;
    for (unsigned long i = 0; i < colors.count(); ++i) {
        const auto element = colors.at<NS::Object>(i);
        if (const auto color = resolvedColor(reinterpret_cast<CGColorRef>(element.raw())))
            gradient.colors.push_back(*color);
    }
    if (gradient.colors.empty())
        return {};
    for (unsigned long i = 0; i < locations.count(); ++i)
        gradient.locations.push_back(locations.at<NS::Number>(i).doubleValue());
    gradient.start = {startPoint.x, startPoint.y};
    gradient.end = {endPoint.x, endPoint.y};
    return gradient;
}

static const StandInClass caGradientLayer("CAGradientLayer", "CALayer", [](Binder<CAGradientLayer>& binder) {
    using Layer = CAGradientLayer;
    binder.readonly<"colors", &Layer::colors>()
        .def<"setColors:", &Layer::setColors>()
        .readonly<"locations", &Layer::locations>()
        .def<"setLocations:", &Layer::setLocations>()
        .property<"startPoint", "setStartPoint:", &Layer::startPoint>()
        .property<"endPoint", "setEndPoint:", &Layer::endPoint>()
        .add();
});

}
