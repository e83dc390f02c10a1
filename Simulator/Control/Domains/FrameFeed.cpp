// Drawing into the shared frame.
#include "Simulator/Control/Domains/FrameFeed.hpp"

#include "Simulator/UIKit/UIScreen.hpp"

#include <array>
#include <chrono>
#include <cstring>

namespace Simulator::Control {

namespace {

/// The compositor's blue, green, red, x to the page's red, green, blue, alpha.
void convert(const std::uint8_t* from, int width, std::uint8_t* to)
{
    for (int x = 0; x < width; ++x, from += 4, to += 4) {
        to[0] = from[2];
        to[1] = from[1];
        to[2] = from[0];
        to[3] = 255;
    }
}

}

Json describeScreen()
{
    const ScreenSettings& screen = screenSettings();
    return {{"width", screen.size.width}, {"height", screen.size.height}, {"scale", screen.scale}};
}

Json FrameFeed::draw(UIWindow& window, const std::string& path)
{
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    if (!m_frame || m_frame->path() != path) {
        m_frame = std::make_unique<SharedFrame>(path);
        m_renderer = {};
    }
    const auto damage = m_renderer.render(window);
    const auto tiles = write(damage, m_renderer.compositor().pixels());
    return {{"screen", describeScreen()}, {"pixels", {m_frame->width(), m_frame->height()}}, {"tiles", tiles},
        {"seconds", std::chrono::duration<double>(Clock::now() - begin).count()}};
}

std::vector<std::size_t> FrameFeed::write(
    const std::vector<Graphics::PixelRect>& damage, const Graphics::FrameView& view)
{
    const bool isNew = m_frame->resize(view.width, view.height);
    std::vector<std::size_t> changed;
    for (std::size_t index = 0; index < m_frame->tileCount(); ++index) {
        const auto [x, y, width, height] = m_frame->tile(index);
        const Graphics::PixelRect part{x, y, width, height};
        const bool isDamaged = std::any_of(
            damage.begin(), damage.end(), [&](const Graphics::PixelRect& rect) { return rect.intersects(part); });
        if ((isNew || isDamaged) && writeTile(index, view, isNew))
            changed.push_back(index);
    }
    return changed;
}

/// False when it looks as it did.
bool FrameFeed::writeTile(std::size_t index, const Graphics::FrameView& view, bool isNew)
{
    const auto part = m_frame->tile(index);
    const auto bytes = static_cast<std::size_t>(part.width) * 4;
    std::array<std::uint8_t, SharedFrame::tileSide * 4> converted;
    bool differs = isNew;
    for (int y = part.y; y < part.y + part.height; ++y) {
        convert(view.pixels + static_cast<std::ptrdiff_t>(y) * view.stride + static_cast<std::ptrdiff_t>(part.x) * 4,
            part.width, converted.data());
        std::uint8_t* to = m_frame->row(y) + static_cast<std::ptrdiff_t>(part.x) * 4;
        differs = differs || std::memcmp(to, converted.data(), bytes) != 0;
        std::memcpy(to, converted.data(), bytes);
    }
    return differs;
}

}
