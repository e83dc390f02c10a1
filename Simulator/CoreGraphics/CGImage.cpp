// Image objects and the C functions that measure them.
#include "Simulator/CoreGraphics/CGImage.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

ObjC::Object makeCGImage(const Graphics::Image::Pointer& image)
{
    if (!image)
        return {};
    ObjC::Object object = newInstance("CGImage");
    standIn<CGImageObject>(object.raw()).image = image;
    return object;
}

Graphics::Image::Pointer imageOf(CGImageRef image)
{
    const auto* object = standInBehind<CGImageObject>(image);
    return object ? object->image : nullptr;
}

static const StandInClass cgImage("CGImage", "NSObject", [](Binder<CGImageObject>& binder) { binder.add(); });

}

extern "C" {

/// The rows as they are stored; only the picture made of them knows how the camera was held.
[[gnu::visibility("default")]] std::size_t CGImageGetWidth(CGImageRef image)
{
    const auto pixels = Simulator::imageOf(image);
    return pixels ? static_cast<std::size_t>(pixels->storedSize().width) : 0;
}

[[gnu::visibility("default")]] std::size_t CGImageGetHeight(CGImageRef image)
{
    const auto pixels = Simulator::imageOf(image);
    return pixels ? static_cast<std::size_t>(pixels->storedSize().height) : 0;
}

[[gnu::visibility("default")]] void CGImageRelease(CGImageRef image)
{
    ObjC::release(reinterpret_cast<id>(image));
}
}
