// Flattens a layer tree to the list of what is drawn.
#pragma once

#include "Simulator/Graphics/DisplayItem.hpp"
#include "Simulator/Graphics/TextCache.hpp"

namespace Simulator::Graphics {

class DisplayListBuilder {
public:
    DisplayListBuilder(TextCache& texts, double scale, const PixelRect& screen);
    DisplayList build(const Layer& root);

private:
    /// Where a layer is drawn: its transform to pixels and what can be seen there.
    struct Place {
        AffineTransform transform;
        PixelRect clip;
    };

    void add(const Layer& layer, const Place& parent, int depth, DisplayList& out);
    void addBody(const Layer& layer, const Place& place, int depth, DisplayList& out);
    void addFill(const RoundedRect& shape, double ringWidth, const Color& color, const Place& place, DisplayList& out);
    void addContent(const Layer& layer, const Place& place, DisplayList& out);
    void addText(const Text& text, const Rect& bounds, const Place& place, DisplayList& out);
    void addImage(const ImageContent& content, const Rect& bounds, const Place& place, DisplayList& out);
    void addPicture(const Image::Pointer& image, const Rect& rect, const std::optional<Color>& tint, const Place& place,
        DisplayList& out);
    void addGradient(
        const Gradient& gradient, const Rect& area, const RoundedRect& shape, const Place& place, DisplayList& out);
    void addBackdrop(const BackdropBlur& blur, const RoundedRect& shape, const Place& place, DisplayList& out);

    TextCache& m_texts;
    double m_scale;
    PixelRect m_screen;
};

}
