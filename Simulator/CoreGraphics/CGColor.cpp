// Colour objects and the C functions that read them.
#include "Simulator/CoreGraphics/CGColor.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

namespace {

struct CGColorSpaceObject : StandIn {
    using Root = CGColorSpaceObject;
};

}

ColorComponents ColorComponents::withAlpha(double alpha) const
{
    ColorComponents changed = *this;
    changed.values[count - 1] = alpha;
    return changed;
}

Graphics::Color ColorComponents::color() const
{
    if (count == 2)
        return {values[0], values[0], values[0], values[1]};
    return {values[0], values[1], values[2], values[3]};
}

ObjC::Object makeCGColor(const ColorComponents& components)
{
    ObjC::Object color = newInstance("CGColor");
    standIn<CGColorObject>(color.raw()).components = components;
    return color;
}

const ColorComponents* componentsOf(CGColorRef color)
{
    const auto* object = standInBehind<CGColorObject>(color);
    return object ? &object->components : nullptr;
}

std::optional<Graphics::Color> resolvedColor(CGColorRef color)
{
    const ColorComponents* components = componentsOf(color);
    return components ? std::optional(components->color()) : std::nullopt;
}

static const StandInClass cgColor("CGColor", "NSObject", [](Binder<CGColorObject>& binder) { binder.add(); });

static const StandInClass cgColorSpace(
    "CGColorSpace", "NSObject", [](Binder<CGColorSpaceObject>& binder) { binder.add(); });

}

using namespace Simulator;

extern "C" {

[[gnu::visibility("default")]] std::size_t CGColorGetNumberOfComponents(CGColorRef color)
{
    const ColorComponents* components = componentsOf(color);
    return components ? components->count : 0;
}

[[gnu::visibility("default")]] const CGFloat* CGColorGetComponents(CGColorRef color)
{
    const ColorComponents* components = componentsOf(color);
    return components ? components->values.data() : nullptr;
}

[[gnu::visibility("default")]] CGColorRef CGColorRetain(CGColorRef color)
{
    ObjC::retain(reinterpret_cast<id>(color));
    return color;
}

[[gnu::visibility("default")]] void CGColorRelease(CGColorRef color)
{
    ObjC::release(reinterpret_cast<id>(color));
}

[[gnu::visibility("default")]] CGColorSpaceRef CGColorSpaceCreateDeviceRGB()
{
    return ownedReference<CGColorSpaceRef>(newInstance("CGColorSpace"));
}

[[gnu::visibility("default")]] void CGColorSpaceRelease(CGColorSpaceRef space)
{
    ObjC::release(reinterpret_cast<id>(space));
}
}
