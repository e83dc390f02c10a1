// Sets the text engine up on private configurations that know only the faces in use.
#include "Simulator/Graphics/Typesetter.hpp"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

namespace Simulator::Graphics {

namespace {

constexpr std::size_t contextLimit = 64;
/// Characters remembered with the face that has them.
constexpr std::size_t fallbackLimit = 4096;

/// The engine initialises the process's default configuration in any case; an empty one spares it the machine's.
void avoidMachineConfiguration()
{
    static const bool done = [] {
        FcConfig* empty = FcConfigCreate();
        FcConfigSetCurrent(empty);
        FcConfigDestroy(empty);
        return true;
    }();
    static_cast<void>(done);
}

bool needsGlyph(char32_t character)
{
    return !g_unichar_iscntrl(character) && !g_unichar_iszerowidth(character) && character != 0xFFFC
        && g_unichar_type(character) != G_UNICODE_FORMAT && g_unichar_type(character) != G_UNICODE_LINE_SEPARATOR
        && g_unichar_type(character) != G_UNICODE_PARAGRAPH_SEPARATOR;
}

FontConfigurationPointer configurationWith(std::span<const std::shared_ptr<Typeface>> typefaces)
{
    FontConfigurationPointer configuration(FcConfigCreate());
    FcConfigBuildFonts(configuration.get());
    FcFontSet* fonts = FcConfigGetFonts(configuration.get(), FcSetSystem);
    for (const auto& typeface : typefaces) {
        if (FcPattern* pattern = typeface->pattern(); pattern && fonts) {
            FcPatternReference(pattern);
            FcFontSetAdd(fonts, pattern);
        }
    }
    return fonts && fonts->nfont > 0 ? std::move(configuration) : nullptr;
}

/// The same on every machine: no hinting, grey edges, positions as exact as the outlines.
PangoContextPointer pangoContext(PangoFontMap* fontMap, double scale)
{
    PangoContextPointer context(pango_font_map_create_context(fontMap));
    const FontOptionsPointer options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options.get());
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_language(context.get(), pango_language_from_string("en"));
    pango_context_set_base_dir(context.get(), PANGO_DIRECTION_WEAK_LTR);
    PangoMatrix matrix = PANGO_MATRIX_INIT;
    pango_matrix_scale(&matrix, scale, scale);
    pango_context_set_matrix(context.get(), &matrix);
    return context;
}

}

/// The font map keeps its configuration for ever unless it is taken away.
TypesettingContext::~TypesettingContext()
{
    pango = nullptr;
    if (fontMap)
        pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(fontMap.get()), nullptr);
}

Typesetter::Typesetter(std::vector<std::shared_ptr<const Font>> systemFonts)
    : m_systemFonts(std::move(systemFonts))
{
}

std::shared_ptr<const Font> Typesetter::systemFont(int weight) const
{
    return m_systemFonts.empty() ? nullptr : inWeight(m_systemFonts.front(), weight);
}

std::shared_ptr<const Font> Typesetter::inWeight(const std::shared_ptr<const Font>& font, int weight) const
{
    auto nearest = font;
    for (const auto& candidate : m_systemFonts) {
        const bool isSibling = candidate->familyName() == font->familyName() && !candidate->isItalic();
        if (isSibling && std::abs(candidate->weight() - weight) < std::abs(nearest->weight() - weight))
            nearest = candidate;
    }
    return nearest;
}

std::shared_ptr<Typeface> Typesetter::typeface(const std::shared_ptr<const Font>& font)
{
    const auto found = m_typefaces.find(font->identity());
    if (found != m_typefaces.end())
        return found->second;
    auto opened = Typeface::open(font);
    if (opened)
        m_typefaces.emplace(font->identity(), opened);
    return opened;
}

std::shared_ptr<Typeface> Typesetter::requested(const FaceRequest& request)
{
    if (request.font) {
        if (auto opened = typeface(request.font))
            return opened;
    }
    const auto font = systemFont(request.font ? request.font->weight() : 400);
    return font ? typeface(font) : nullptr;
}

/// Null if no system face has the character.
std::shared_ptr<const Font> Typesetter::fallbackFor(char32_t character, int weight)
{
    if (m_fallbacks.size() > fallbackLimit)
        m_fallbacks.clear();
    auto [entry, isNew] = m_fallbacks.try_emplace(character);
    if (isNew) {
        const auto found = std::find_if(m_systemFonts.begin(), m_systemFonts.end(), [&](const auto& font) {
            const auto candidate = typeface(font);
            return candidate && candidate->covers(character);
        });
        entry->second = found == m_systemFonts.end() ? nullptr : *found;
    }
    return entry->second ? inWeight(entry->second, weight) : nullptr;
}

Typesetting Typesetter::prepare(std::span<const FaceRequest> requests, double scale)
{
    Typesetting typesetting;
    std::vector<std::shared_ptr<Typeface>> all;
    const auto include = [&](const std::shared_ptr<Typeface>& face) {
        if (std::find(all.begin(), all.end(), face) == all.end())
            all.push_back(face);
    };
    for (const auto& request : requests) {
        const auto main = requested(request);
        if (!main)
            return {};
        include(main);
        std::string families = main->alias();
        std::set<std::string> listed;
        for (const char32_t character : request.characters) {
            if (!needsGlyph(character) || main->covers(character))
                continue;
            const auto font = fallbackFor(character, main->font().weight());
            const auto fallback = font ? typeface(font) : nullptr;
            if (!fallback || !listed.insert(fallback->alias()).second)
                continue;
            include(fallback);
            families += "," + fallback->alias();
        }
        typesetting.families.push_back(std::move(families));
    }
    typesetting.context = contextWith(std::move(all), scale);
    return typesetting;
}

std::shared_ptr<TypesettingContext> Typesetter::contextWith(
    std::vector<std::shared_ptr<Typeface>> typefaces, double scale)
{
    std::sort(typefaces.begin(), typefaces.end(),
        [](const auto& one, const auto& other) { return one->font().identity() < other->font().identity(); });
    ContextKey key{{}, scale};
    for (const auto& typeface : typefaces)
        key.first.push_back(typeface->font().identity());
    auto& context = m_contexts[key];
    if (!context) {
        avoidMachineConfiguration();
        context = std::make_shared<TypesettingContext>();
        context->configuration = configurationWith(typefaces);
        context->typefaces = std::move(typefaces);
        if (context->configuration) {
            context->fontMap.reset(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
            pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(context->fontMap.get()), context->configuration.get());
            context->pango = pangoContext(context->fontMap.get(), scale);
        }
    }
    context->lastUse = ++m_uses;
    const auto chosen = context;
    forgetOldContexts();
    return chosen->pango ? chosen : nullptr;
}

/// Keeps the number of open user fonts within bounds however many of them are shown one after the other.
void Typesetter::forgetOldContexts()
{
    if (m_contexts.size() <= contextLimit)
        return;
    const auto oldest = std::min_element(m_contexts.begin(), m_contexts.end(),
        [](const auto& one, const auto& other) { return one.second->lastUse < other.second->lastUse; });
    m_contexts.erase(oldest);
    std::erase_if(m_typefaces,
        [](const auto& entry) { return !entry.second->font().isSystemFont() && entry.second.use_count() == 1; });
}

}
