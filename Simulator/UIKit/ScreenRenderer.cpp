// Draws windows. The compositor is made anew when the screen's size, its scale or the fonts changed.
#include "Simulator/UIKit/ScreenRenderer.hpp"

#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/UIKit/LayerTree.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

namespace Simulator {

Graphics::Compositor& ScreenRenderer::compositor()
{
    const ScreenSettings& screen = screenSettings();
    if (!m_compositor || m_size != screen.size || m_scale != screen.scale || m_fonts != &fontCatalogue()) {
        m_size = screen.size;
        m_scale = screen.scale;
        m_fonts = &fontCatalogue();
        m_compositor
            = std::make_unique<Graphics::Compositor>(*m_fonts, Graphics::Size{m_size.width, m_size.height}, m_scale);
    }
    return *m_compositor;
}

std::vector<Graphics::PixelRect> ScreenRenderer::render(UIWindow& window)
{
    const ObjC::AutoreleasePool pool;
    layoutTree(window);
    Graphics::Layer screen
        = Graphics::Layer::withFrame({0, 0, screenSettings().size.width, screenSettings().size.height});
    if (!window.isHidden() && window.alpha() > 0)
        screen.children.push_back(buildLayer(window));
    return compositor().render(screen);
}

std::vector<std::byte> ScreenRenderer::capturePng(UIWindow& window)
{
    render(window);
    return compositor().encodePng();
}

}
