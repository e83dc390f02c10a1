// Chooses the faces that a text needs and gives the engine exactly those: the text's own faces, and for the
// characters that they lack the first system face that has them.
#pragma once

#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Graphics/Handles.hpp"
#include "Simulator/Graphics/Typeface.hpp"

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Simulator::Graphics {

/// A run of characters and the face that it asks for.
struct FaceRequest {
    std::shared_ptr<const Font> font;
    std::u32string_view characters;
};

/// The engine set up with a few faces. What a text is set from never depends on which other texts were drawn.
struct TypesettingContext {
    TypesettingContext() = default;
    ~TypesettingContext();
    TypesettingContext(const TypesettingContext&) = delete;
    TypesettingContext& operator=(const TypesettingContext&) = delete;

    std::vector<std::shared_ptr<Typeface>> typefaces;
    FontConfigurationPointer configuration;
    FontMapPointer fontMap;
    PangoContextPointer pango;
    std::uint64_t lastUse = 0;
};

/// How a text is to be set: the context, and for each request the list of families to ask for in turn.
struct Typesetting {
    std::shared_ptr<TypesettingContext> context;
    std::vector<std::string> families;
};

class Typesetter {
public:
    explicit Typesetter(std::vector<std::shared_ptr<const Font>> systemFonts);

    /// No context if there is not a single usable face.
    Typesetting prepare(std::span<const FaceRequest> requests, double scale);
    std::shared_ptr<const Font> systemFont(int weight) const;

private:
    using ContextKey = std::pair<std::vector<std::uint64_t>, double>;

    std::shared_ptr<Typeface> typeface(const std::shared_ptr<const Font>& font);
    std::shared_ptr<Typeface> requested(const FaceRequest& request);
    std::shared_ptr<const Font> fallbackFor(char32_t character, int weight);
    std::shared_ptr<const Font> inWeight(const std::shared_ptr<const Font>& font, int weight) const;
    std::shared_ptr<TypesettingContext> contextWith(std::vector<std::shared_ptr<Typeface>> typefaces, double scale);
    void forgetOldContexts();

    std::vector<std::shared_ptr<const Font>> m_systemFonts;
    std::unordered_map<std::uint64_t, std::shared_ptr<Typeface>> m_typefaces;
    std::unordered_map<char32_t, std::shared_ptr<const Font>> m_fallbacks;
    std::map<ContextKey, std::shared_ptr<TypesettingContext>> m_contexts;
    std::uint64_t m_uses = 0;
};

}
