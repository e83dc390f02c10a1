// Pictures of the screen.
#pragma once

#include "Simulator/Graphics/Compositor.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace Simulator {

class ScreenRenderer {
public:
    /// Lays the window out and draws it. Returns what differs from the frame before, in pixels.
    std::vector<Graphics::PixelRect> render(UIWindow& window);
    /// The screen with the window on it as a PNG.
    std::vector<std::byte> capturePng(UIWindow& window);
    /// Of the last frame; the compositor is made with the first one.
    Graphics::Compositor& compositor();

private:
    std::unique_ptr<Graphics::Compositor> m_compositor;
    CGSize m_size;
    double m_scale = 0;
    Graphics::FontCatalogue* m_fonts = nullptr;
};

}
