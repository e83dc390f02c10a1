// What a label shows: runs of characters and pictures in line, and how they are set within its bounds.
#pragma once

#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Graphics/Geometry.hpp"
#include "Simulator/Graphics/Image.hpp"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Simulator::Graphics {

class FontCatalogue;

/// A picture in the line. Its bounds are relative to the baseline with y upwards, as a text attachment's are.
struct TextAttachment {
    Image::Pointer image;
    Rect bounds;
    /// Filled with the run's text colour instead of its own colours.
    bool isTemplate = false;
};

struct TextRun {
    /// UTF-8; what is not valid is shown as the replacement character. Ignored if there is an attachment.
    std::string string;
    /// Null takes the regular system font.
    std::shared_ptr<const Font> font;
    double size = 17;
    Color color;
    std::optional<TextAttachment> attachment;
};

/// In the order of the platform's numbers.
enum class TextAlignment { left, center, right, justified, natural };
enum class LineBreakMode { wordWrap, characterWrap, clip, truncateHead, truncateTail, truncateMiddle };

struct Text {
    std::vector<TextRun> runs;
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::truncateTail;
    /// 0: as many as fit.
    int numberOfLines = 1;
    /// Shrinks the font sizes of a text of one line until it fits, down to the scale.
    bool adjustsFontSizeToFitWidth = false;
    double minimumScale = 0;
};

/// The size that the text takes in a label no wider and no higher than the limit (0 or less: no limit), rounded up to
/// whole pixels of the scale. Nothing shrinks for the measurement.
Size measure(FontCatalogue& catalogue, const Text& text, Size limit, double scale = 1);

/// Whether a label of that size shows the text to its end, shrunk if the text allows it.
bool fits(FontCatalogue& catalogue, const Text& text, Size bounds, double scale = 1);

}
