// Bitmap images: an object that shares the pixels.
#pragma once

#include "Platform/CoreGraphics/CGContext.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

struct CGImageObject : StandIn {
    using Root = CGImageObject;
    Graphics::Image::Pointer image;
};

ObjC::Object makeCGImage(const Graphics::Image::Pointer& image);
/// The pixels of an image object; null for anything else.
Graphics::Image::Pointer imageOf(CGImageRef image);

}
