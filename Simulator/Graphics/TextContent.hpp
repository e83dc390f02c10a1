// A label's runs as the one string that the engine sets, cut to what can be visible.
#pragma once

#include "Simulator/Graphics/Text.hpp"

#include <string>
#include <vector>

namespace Simulator::Graphics {

struct TextContent {
    /// A run's part of the string, in bytes.
    struct Range {
        int start = 0;
        int end = 0;
        const TextRun* run = nullptr;
        std::u32string characters;
    };

    std::string string;
    std::vector<Range> ranges;

    /// The range of the character at a byte offset; null beyond the end.
    const Range* at(int byteOffset) const;
};

/// Sides of 0 or less are unlimited. The content refers to the text's runs.
TextContent contentOf(const Text& text, Size bounds);

/// A font size that can be drawn.
double usableFontSize(double size);

}
