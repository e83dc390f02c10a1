// Keeps the last frame and its display list; a new tree redraws their difference.
#include "Simulator/Graphics/Compositor.hpp"

#include "Simulator/Graphics/BackdropPass.hpp"
#include "Simulator/Graphics/BitmapCache.hpp"
#include "Simulator/Graphics/Damage.hpp"
#include "Simulator/Graphics/DisplayListBuilder.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Graphics/ImageSource.hpp"
#include "Simulator/Graphics/Painter.hpp"
#include "Simulator/Graphics/PngWriter.hpp"

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

constexpr double sideLimit = 16'384;

double usableScale(double scale)
{
    return std::isfinite(scale) ? std::clamp(scale, 0.1, 16.0) : 1;
}

int pixelCount(double points, double scale)
{
    const double pixels = std::round(points * scale);
    return pixels >= 1 ? static_cast<int>(std::min(pixels, sideLimit)) : 1;
}

}

struct Compositor::State {
    State(FontCatalogue& catalogue, Size points, double wantedScale, Backing chosenBacking)
        : scale(usableScale(wantedScale))
        , backing(chosenBacking)
        , screen{0, 0, pixelCount(points.width, scale), pixelCount(points.height, scale)}
        , texts(catalogue.typesetter(), scale)
        , frame(Bitmap::blank(CAIRO_FORMAT_ARGB32, screen))
    {
    }

    bool isOpaque() const { return backing == Backing::opaqueBlack; }

    double scale;
    Backing backing;
    PixelRect screen;
    TextCache texts;
    BitmapCache bitmaps;
    Bitmap frame;
    DisplayList list;
    bool isValid = false;
};

Compositor::Compositor(FontCatalogue& catalogue, Size points, double scale, Backing backing)
    : m_state(std::make_unique<State>(catalogue, points, scale, backing))
{
}

Compositor::~Compositor() = default;

std::vector<PixelRect> Compositor::render(const Layer& root)
{
    State& state = *m_state;
    if (!state.frame.surface)
        return {};
    DisplayList list = DisplayListBuilder(state.texts, state.scale, state.screen).build(root);
    resolveBackdrops(list);
    const auto damage
        = state.isValid ? damageBetween(state.list, list, state.screen) : std::vector<PixelRect>{state.screen};
    state.list = std::move(list);
    state.isValid = true;
    Painter painter(state.bitmaps, state.list, {0, 0, 0, state.isOpaque() ? 1.0 : 0.0});
    for (const auto& rect : damage)
        painter.paint(state.frame.surface.get(), rect);
    cairo_surface_flush(state.frame.surface.get());
    state.texts.endFrame();
    state.bitmaps.endFrame(state.list);
    return damage;
}

void Compositor::invalidate()
{
    m_state->isValid = false;
}

FrameView Compositor::pixels() const
{
    cairo_surface_t* surface = m_state->frame.surface.get();
    if (!surface)
        return {};
    return {cairo_image_surface_get_data(surface), m_state->screen.width, m_state->screen.height,
        cairo_image_surface_get_stride(surface)};
}

std::vector<std::byte> Compositor::encodePng() const
{
    return encodePng(m_state->screen);
}

std::vector<std::byte> Compositor::encodePng(const PixelRect& part) const
{
    const PixelRect shown = part.intersectionWith(m_state->screen);
    FrameView view = pixels();
    if (!view.pixels || shown.isEmpty())
        return {};
    view.pixels += static_cast<std::ptrdiff_t>(shown.y) * view.stride + static_cast<std::ptrdiff_t>(shown.x) * 4;
    view.width = shown.width;
    view.height = shown.height;
    return Graphics::encodePng(view, m_state->isOpaque());
}

Image::Pointer Compositor::image() const
{
    const FrameView view = pixels();
    if (!view.pixels)
        return nullptr;
    std::vector<std::uint8_t> swapped(static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height) * 4);
    std::uint8_t* to = swapped.data();
    for (int y = 0; y < view.height; ++y) {
        const std::uint8_t* from = view.pixels + static_cast<std::ptrdiff_t>(y) * view.stride;
        for (int x = 0; x < view.width; ++x, from += 4, to += 4) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
            to[3] = from[3];
        }
    }
    return Image::fromPixels(swapped.data(), view.width, view.height, view.width * 4);
}

Image::Pointer rasterize(FontCatalogue& catalogue, const Layer& layer, Size points, double scale)
{
    if (!(points.width > 0 && points.height > 0))
        return nullptr;
    Compositor compositor(catalogue, points, scale, Backing::transparent);
    compositor.render(layer);
    return compositor.image();
}

}
