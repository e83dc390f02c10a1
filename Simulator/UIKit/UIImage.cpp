// Picture objects: finding the file, sharing the pixels, colouring.
#include "Simulator/UIKit/UIImage.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/CoreGraphics/CGImage.hpp"
#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Graphics/Compositor.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/ImageOrigins.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <algorithm>
#include <filesystem>

namespace Simulator {

namespace {

std::span<const std::byte> bytesOf(const NS::Data& data)
{
    return {static_cast<const std::byte*>(data.bytes()), data.length()};
}

/// "icon@3x.png" is drawn at three pixels a point.
double scaleOf(const std::filesystem::path& path)
{
    const std::string stem = path.stem();
    if (stem.ends_with("@2x"))
        return 2;
    return stem.ends_with("@3x") ? 3 : 1;
}

/// The file that the phone takes for a path: the variant for the screen's scale, if there is one beside it.
std::string bestVariant(const std::filesystem::path& path)
{
    const PhoneFiles& files = PhoneFiles::shared();
    if (scaleOf(path) == 1) {
        for (int scale = static_cast<int>(std::clamp(screenSettings().scale, 1.0, 3.0)); scale > 1; --scale) {
            std::filesystem::path variant = path;
            variant.replace_filename(
                path.stem().string() + "@" + std::to_string(scale) + "x" + path.extension().string());
            if (files.exists(variant.string()))
                return variant;
        }
    }
    return path;
}

UI::Image imageFromFile(const std::string& path)
{
    const std::string file = bestVariant(path);
    const auto content = PhoneFiles::shared().read(file);
    if (!content)
        return {};
    const auto* first = reinterpret_cast<const std::byte*>(content.value.data());
    const auto image = Graphics::Image::fromBytes({first, first + content.value.size()});
    return makeImage(image, scaleOf(file), file);
}

std::string textOf(const NS::String& text)
{
    return text.is<NS::String>() ? std::string(text.utf8()) : std::string();
}

}

UIImage* imageStandIn(const ObjC::Object& image)
{
    return standInOrNull<UIImage>(image);
}

UI::Image makeImage(const Graphics::Image::Pointer& image, double scale, const std::string& path)
{
    if (!image)
        return {};
    const ObjC::Object object = newInstance("UIImage");
    auto& standing = standIn<UIImage>(object.raw());
    standing.image = image;
    standing.scale = scale;
    standing.path = path;
    return UI::Image(object.raw());
}

UI::Image UIImage::withContentsOfFile(const NS::String& path)
{
    const std::string file = textOf(path);
    return file.starts_with('/') ? imageFromFile(file) : UI::Image();
}

UI::Image UIImage::named(const NS::String& name)
{
    std::filesystem::path file = textOf(name);
    if (!file.is_absolute())
        return {};
    if (!file.has_extension())
        file += ".png";
    return imageFromFile(file);
}

UI::Image UIImage::withData(const NS::Data& data)
{
    return withDataAndScale(data, 1);
}

UI::Image UIImage::withDataAndScale(const NS::Data& data, double scale)
{
    if (!data.is<NS::Data>())
        return {};
    const auto bytes = bytesOf(data);
    const auto image = Graphics::Image::fromBytes({bytes.begin(), bytes.end()});
    return makeImage(image, scale > 0 ? scale : 1, originOf(bytes));
}

UI::Image UIImage::symbolNamed(const NS::String& name)
{
    const std::string symbol = textOf(name);
    return makeImage(symbolSet().symbol(symbol), screenSettings().scale, symbol);
}

UI::Image UIImage::withCGImage(CGImageRef image)
{
    return makeImage(imageOf(image), 1);
}

CGSize UIImage::size() const
{
    if (!image)
        return {};
    const double pixelsPerPoint = isSymbol() ? 1 : scale;
    return {image->size().width / pixelsPerPoint, image->size().height / pixelsPerPoint};
}

Graphics::Image::Pointer UIImage::pixels() const
{
    if (!isSymbol())
        return image;
    auto layer = Graphics::Layer::withFrame({0, 0, image->size().width, image->size().height});
    layer.content = Graphics::ImageContent{image, Graphics::ContentMode::scaleToFill, 1, {}};
    return Graphics::rasterize(fontCatalogue(), layer, image->size(), scale);
}

CGImageRef UIImage::CGImage()
{
    if (!m_reference)
        m_reference = makeCGImage(pixels());
    return reinterpret_cast<CGImageRef>(m_reference.raw());
}

UI::Image UIImage::withRenderingMode(long mode) const
{
    UI::Image same = makeImage(image, scale, path);
    if (auto* standing = imageStandIn(same))
        standing->renderingMode = mode;
    return same;
}

UI::Image UIImage::withTintColor(const UI::Color& color) const
{
    const CGSize points = size();
    auto layer = Graphics::Layer::withFrame({0, 0, points.width, points.height});
    layer.content = Graphics::ImageContent{image, Graphics::ContentMode::scaleToFill, scale, resolvedColor(color)};
    const auto tinted = Graphics::rasterize(fontCatalogue(), layer, {points.width, points.height}, scale);
    UI::Image result = makeImage(tinted, scale, path);
    if (auto* standing = imageStandIn(result))
        standing->renderingMode = renderingMode;
    return result;
}

void UIImage::drawInRect(CGRect rect) const
{
    if (!image || !isFinite(rect))
        return;
    auto layer = Graphics::Layer::withFrame(toGraphics(rect));
    layer.content = Graphics::ImageContent{image, Graphics::ContentMode::scaleToFill, scale, {}};
    drawIntoImageContext(std::move(layer));
}

bool UIImage::isTemplate() const
{
    constexpr long alwaysTemplate = static_cast<long>(UI::ImageRenderingMode::alwaysTemplate);
    return renderingMode == alwaysTemplate || (renderingMode == 0 && isSymbol());
}

static const StandInClass uiImage("UIImage", "NSObject", [](Binder<UIImage>& binder) {
    binder.classMethod<"imageWithContentsOfFile:", &UIImage::withContentsOfFile>()
        .classMethod<"imageWithData:", &UIImage::withData>()
        .classMethod<"imageWithData:scale:", &UIImage::withDataAndScale>()
        .classMethod<"imageNamed:", &UIImage::named>()
        .classMethod<"systemImageNamed:", &UIImage::symbolNamed>()
        .classMethod<"imageWithCGImage:", &UIImage::withCGImage>()
        .def<"size", &UIImage::size>()
        .readonly<"scale", &UIImage::scale>()
        .def<"CGImage", &UIImage::CGImage>()
        .readonly<"renderingMode", &UIImage::renderingMode>()
        .def<"imageWithRenderingMode:", &UIImage::withRenderingMode>()
        .def<"imageWithTintColor:", &UIImage::withTintColor>()
        .def<"isSymbolImage", &UIImage::isSymbol>()
        .def<"drawInRect:", &UIImage::drawInRect>()
        .def<"copyWithZone:", &UIImage::sameForCopy>()
        .add();
});

}
