// Bitmap contexts. The one layout that is supported is red, green, blue, alpha: 8 bits each, premultiplied.
#include "Platform/CoreGraphics/CGContext.hpp"
#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/CoreGraphics/CGImage.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Simulator {

namespace {

constexpr std::size_t bytesPerPixel = 4;
constexpr std::size_t largestSide = 1 << 15;
constexpr std::size_t largestOwnArea = std::size_t(1) << 26;
/// An image drawn larger than this is magnified from this many pixels a side.
constexpr double largestDrawing = 4096;

/// Negative sizes reach to the other side of the origin.
CGRect standardized(CGRect rect)
{
    rect.origin.x += std::min(rect.size.width, 0.0);
    rect.origin.y += std::min(rect.size.height, 0.0);
    return {rect.origin, {std::abs(rect.size.width), std::abs(rect.size.height)}};
}

/// A stretch of whole pixels of the context, and how many pixels the image is decoded to for it.
struct Stretch {
    double begin;
    double length;
    int first;
    int last;
    int decoded;

    Stretch(double from, double size, int limit)
        : begin(std::round(from))
        , length(std::max(std::round(from + size) - begin, 1.0))
        , first(static_cast<int>(std::clamp(begin, 0.0, double(limit))))
        , last(static_cast<int>(std::clamp(begin + length, 0.0, double(limit))))
        , decoded(static_cast<int>(std::min(length, largestDrawing)))
    {
    }
    int source(int position) const
    {
        return std::clamp(static_cast<int>((position + 0.5 - begin) / length * decoded), 0, decoded - 1);
    }
};

void layOver(std::uint8_t* below, const std::uint8_t* above)
{
    const unsigned uncovered = 255 - above[3];
    for (std::size_t i = 0; i < bytesPerPixel; ++i)
        below[i] = static_cast<std::uint8_t>(std::min(above[i] + (below[i] * uncovered + 127) / 255, 255u));
}

struct CGContextObject : StandIn {
    using Root = CGContextObject;

    /// Scales the whole image to the rectangle and lays it over what is there. The origin is at the bottom left.
    void draw(const Graphics::Image& image, CGRect rect)
    {
        if (!isFinite(rect))
            return;
        rect = standardized(rect);
        if (rect.size.width == 0 || rect.size.height == 0)
            return;
        const Stretch across(rect.origin.x, rect.size.width, width);
        const Stretch down(height - rect.origin.y - rect.size.height, rect.size.height, height);
        if (across.first >= across.last || down.first >= down.last)
            return;
        const std::size_t decodedStride = across.decoded * bytesPerPixel;
        std::vector<std::uint8_t> decoded(decodedStride * down.decoded);
        if (!image.drawInto({decoded.data(), across.decoded, down.decoded, static_cast<int>(decodedStride)}, false))
            return;
        for (int y = down.first; y < down.last; ++y) {
            const std::uint8_t* source = decoded.data() + down.source(y) * decodedStride;
            std::uint8_t* row = pixels + y * stride;
            for (int x = across.first; x < across.last; ++x)
                layOver(row + x * bytesPerPixel, source + across.source(x) * bytesPerPixel);
        }
    }

    std::uint8_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::size_t stride = 0;
    /// The memory, if the caller gave none.
    std::vector<std::uint8_t> storage;
};

}

static const StandInClass cgContext("CGContext", "NSObject", [](Binder<CGContextObject>& binder) { binder.add(); });

}

using namespace Simulator;

extern "C" {

[[gnu::visibility("default")]] CGContextRef CGBitmapContextCreate(void* data, std::size_t width, std::size_t height,
    std::size_t bitsPerComponent, std::size_t bytesPerRow, CGColorSpaceRef space, std::uint32_t bitmapInfo)
{
    constexpr std::uint32_t byteOrderMask = 7 << 12;
    const bool isRedFirst = (bitmapInfo & ~byteOrderMask) == kCGImageAlphaPremultipliedLast
        && ((bitmapInfo & byteOrderMask) == 0 || (bitmapInfo & byteOrderMask) == kCGBitmapByteOrder32Big);
    if (!space || !isRedFirst || bitsPerComponent != 8)
        return nullptr;
    if (width == 0 || height == 0 || width > largestSide || height > largestSide)
        return nullptr;
    const std::size_t stride = bytesPerRow ? bytesPerRow : width * bytesPerPixel;
    if (stride < width * bytesPerPixel || (!data && (stride > largestOwnArea || height * stride > 4 * largestOwnArea)))
        return nullptr;
    ObjC::Object object = newInstance("CGContext");
    auto& context = standIn<CGContextObject>(object.raw());
    context.width = static_cast<int>(width);
    context.height = static_cast<int>(height);
    context.stride = stride;
    if (!data)
        context.storage.resize(stride * height);
    context.pixels = data ? static_cast<std::uint8_t*>(data) : context.storage.data();
    return ownedReference<CGContextRef>(std::move(object));
}

[[gnu::visibility("default")]] void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image)
{
    auto* bitmap = standInBehind<CGContextObject>(context);
    const auto pixels = imageOf(image);
    if (bitmap && pixels)
        bitmap->draw(*pixels, rect);
}

[[gnu::visibility("default")]] void CGContextRelease(CGContextRef context)
{
    ObjC::release(reinterpret_cast<id>(context));
}
}
