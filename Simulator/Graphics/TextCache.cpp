// Texts are told apart by everything that their setting depends on.
#include "Simulator/Graphics/TextCache.hpp"

#include "Simulator/Graphics/Hasher.hpp"

namespace Simulator::Graphics {

namespace {

constexpr std::uint64_t framesKept = 120;

std::uint64_t digest(const Text& text, Size bounds)
{
    Hasher hasher;
    hasher.addAll(bounds, text.alignment, text.lineBreakMode, text.numberOfLines, text.adjustsFontSizeToFitWidth,
        text.minimumScale);
    for (const auto& run : text.runs) {
        hasher.addAll(std::string_view(run.string), run.font ? run.font->identity() : 0, run.size, run.color);
        if (const auto& attachment = run.attachment)
            hasher.addAll(
                attachment->image ? attachment->image->identity() : 0, attachment->bounds, attachment->isTemplate);
    }
    return hasher.result();
}

}

TextCache::TextCache(Typesetter& typesetter, double scale)
    : m_typesetter(typesetter)
    , m_scale(scale)
{
}

TextCache::Entry TextCache::find(const Text& text, Size bounds)
{
    const std::uint64_t hash = digest(text, bounds);
    auto [entry, isNew] = m_kept.try_emplace(hash);
    if (isNew)
        entry->second.layout = TextLayout::make(m_typesetter, text, bounds, m_scale);
    entry->second.lastFrame = m_frame;
    return {entry->second.layout, hash};
}

void TextCache::endFrame()
{
    ++m_frame;
    std::erase_if(m_kept, [this](const auto& entry) { return entry.second.lastFrame + framesKept < m_frame; });
}

}
