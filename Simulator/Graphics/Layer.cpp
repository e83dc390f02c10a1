// The geometry of a layer in its parent.
#include "Simulator/Graphics/Layer.hpp"

namespace Simulator::Graphics {

Layer Layer::withFrame(const Rect& frame)
{
    Layer layer;
    layer.setFrame(frame);
    return layer;
}

void Layer::setFrame(const Rect& frame)
{
    position = frame.center();
    bounds.width = frame.width;
    bounds.height = frame.height;
}

AffineTransform Layer::toParent() const
{
    const Point center = bounds.center();
    return AffineTransform::translation(-center.x, -center.y)
        .concat(transform)
        .concat(AffineTransform::translation(position.x, position.y));
}

}
