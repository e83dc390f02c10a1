// Image contexts: what is drawn into them is collected and becomes pixels when the picture is asked for.
#include "Simulator/Base/Phone.hpp"
#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Graphics/Compositor.hpp"
#include "Simulator/UIKit/ImageOrigins.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

namespace Simulator {

namespace {

constexpr double largestSide = 8192;

struct ImageContext {
    CGSize size;
    double scale;
    Graphics::Layer drawing;

    bool isUsable() const
    {
        return size.width > 0 && size.height > 0 && size.width * scale <= largestSide
            && size.height * scale <= largestSide;
    }
};

std::vector<ImageContext>& imageContexts()
{
    return Phone::part<std::vector<ImageContext>>();
}

}

void drawIntoImageContext(Graphics::Layer layer)
{
    if (!imageContexts().empty())
        imageContexts().back().drawing.children.push_back(std::move(layer));
}

}

using namespace Simulator;

extern "C" {

[[gnu::visibility("default")]] void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, CGFloat scale)
{
    ImageContext context{size, scale > 0 ? scale : screenSettings().scale, {}};
    if (context.isUsable())
        context.drawing = Graphics::Layer::withFrame({0, 0, size.width, size.height});
    if (opaque)
        context.drawing.backgroundColor = Graphics::Color();
    imageContexts().push_back(std::move(context));
}

[[gnu::visibility("default")]] id UIGraphicsGetImageFromCurrentImageContext()
{
    if (imageContexts().empty() || !imageContexts().back().isUsable())
        return nullptr;
    const ImageContext& context = imageContexts().back();
    const Graphics::Size size{context.size.width, context.size.height};
    return makeImage(Graphics::rasterize(fontCatalogue(), context.drawing, size, context.scale), context.scale)
        .autoreleased();
}

[[gnu::visibility("default")]] void UIGraphicsEndImageContext()
{
    if (!imageContexts().empty())
        imageContexts().pop_back();
}

[[gnu::visibility("default")]] id UIImagePNGRepresentation(id image)
{
    const UIImage* source = imageStandIn(ObjC::Object(image));
    const auto pixels = source ? source->pixels() : nullptr;
    const auto png = pixels ? pixels->encodePng() : std::vector<std::byte>();
    if (png.empty())
        return nullptr;
    rememberOrigin(png, source->path);
    return NS::Data::dataWithBytes(png.data(), png.size()).autoreleased();
}
}
