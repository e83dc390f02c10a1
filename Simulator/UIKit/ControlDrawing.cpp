// Boxes, discs, texts and pictures as layers.
#include "Simulator/UIKit/ControlDrawing.hpp"

#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/UIKit/NamedColors.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

namespace Simulator {

static Graphics::Text lineOf(const std::string& text, const UI::Font& font, const Graphics::Color& color)
{
    Graphics::TextRun run;
    run.string = text;
    run.color = color;
    if (const auto* standing = standInOrNull<UIFont>(font)) {
        run.font = standing->font;
        run.size = standing->pointSize;
    }
    Graphics::Text line;
    line.runs.push_back(std::move(run));
    line.alignment = Graphics::TextAlignment::center;
    return line;
}

Graphics::Color systemColor(const char* selectorName)
{
    return resolvedColor(namedColor(selectorName)).value_or(Graphics::Color());
}

Graphics::Layer makeBox(const Graphics::Rect& frame, const Graphics::Color& color, double cornerRadius)
{
    auto layer = Graphics::Layer::withFrame(frame);
    layer.backgroundColor = color;
    layer.cornerRadius = cornerRadius;
    return layer;
}

Graphics::Layer makeDisc(Graphics::Point center, double diameter, const Graphics::Color& color)
{
    const double radius = diameter / 2;
    return makeBox({center.x - radius, center.y - radius, diameter, diameter}, color, radius);
}

Graphics::Shadow softShadow(double radius, double height)
{
    constexpr double opacity = 0.18;
    return {opacity, {0, 0, 0, 1}, radius, {0, height}};
}

Graphics::Layer makePicture(const Graphics::Rect& frame, const UI::Image& image, const Graphics::Color& tint)
{
    auto layer = Graphics::Layer::withFrame(frame);
    const UIImage* picture = imageStandIn(image);
    if (!picture)
        return layer;
    const CGSize size = picture->size();
    const bool fits = size.width <= frame.width && size.height <= frame.height;
    Graphics::ImageContent content{picture->image,
        fits ? Graphics::ContentMode::center : Graphics::ContentMode::aspectFit,
        picture->isSymbol() ? 1 : picture->scale, {}};
    if (picture->isTemplate())
        content.tint = tint;
    layer.content = std::move(content);
    return layer;
}

Graphics::Layer makeText(
    const Graphics::Rect& frame, const std::string& text, const UI::Font& font, const Graphics::Color& color)
{
    auto layer = Graphics::Layer::withFrame(frame);
    layer.content = lineOf(text, font, color);
    return layer;
}

Graphics::Size measureText(const std::string& text, const UI::Font& font)
{
    return text.empty() ? Graphics::Size()
                        : Graphics::measure(fontCatalogue(), lineOf(text, font, {}), {}, screenSettings().scale);
}

bool textFits(const std::string& text, const UI::Font& font, const Graphics::Rect& frame)
{
    return Graphics::fits(
        fontCatalogue(), lineOf(text, font, {}), {frame.width, frame.height}, screenSettings().scale);
}

}
