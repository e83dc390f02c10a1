// A label's text set in lines: what to draw where, relative to the label's top left corner.
#pragma once

#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Handles.hpp"
#include "Simulator/Graphics/Text.hpp"
#include "Simulator/Graphics/TextContent.hpp"
#include "Simulator/Graphics/Typesetter.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace Simulator::Graphics {

class TextLayout {
public:
    struct PlacedAttachment {
        Image::Pointer image;
        Rect rect;
        std::optional<Color> tint;
    };

    /// Sides of 0 or less are unlimited. Null if there is nothing to show.
    static std::shared_ptr<const TextLayout> make(Typesetter& typesetter, const Text& text, Size bounds, double scale);

    Size usedSize() const { return m_usedSize; }
    /// Every line is there, to its end, and within the bounds.
    bool isWhole() const;
    /// Of the glyphs alone.
    const Rect& inkBounds() const { return m_inkBounds; }
    const std::vector<PlacedAttachment>& attachments() const { return m_attachments; }
    void draw(cairo_t* canvas, double opacity) const;

private:
    struct PlacedLine {
        PangoLinePointer line;
        Point origin;
    };

    TextLayout(Text text, Size bounds);
    bool set(Typesetter& typesetter, double scale);
    void applyAttributes(double fontScale);
    void shrinkToFit();
    void wrapAndTruncate();
    void placeLines();
    void placeAttachments(const PlacedLine& placed);
    double horizontalOffset(PangoLayoutLine* line, double lineWidth) const;

    Text m_text;
    Size m_bounds;
    TextContent m_content;
    Typesetting m_typesetting;
    PangoLayoutPointer m_layout;
    std::vector<PlacedLine> m_lines;
    std::vector<PlacedAttachment> m_attachments;
    Rect m_inkBounds;
    Size m_usedSize;
};

}
