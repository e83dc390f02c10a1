// Remembers how texts were set, for as long as they are shown.
#pragma once

#include "Simulator/Graphics/TextLayout.hpp"

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace Simulator::Graphics {

class TextCache {
public:
    TextCache(Typesetter& typesetter, double scale);

    struct Entry {
        /// Null for a text that shows nothing.
        std::shared_ptr<const TextLayout> layout;
        std::uint64_t hash = 0;
    };
    Entry find(const Text& text, Size bounds);
    /// Forgets what the last frames did not ask for.
    void endFrame();

private:
    struct Kept {
        std::shared_ptr<const TextLayout> layout;
        std::uint64_t lastFrame = 0;
    };

    Typesetter& m_typesetter;
    double m_scale;
    std::uint64_t m_frame = 0;
    std::unordered_map<std::uint64_t, Kept> m_kept;
};

}
