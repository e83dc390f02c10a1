// Draws the screen for whoever looks on: what differs from the frame before goes into the shared frame.
#pragma once

#include "Simulator/Control/Envelope.hpp"
#include "Simulator/Control/SharedFrame.hpp"
#include "Simulator/UIKit/ScreenRenderer.hpp"

#include <memory>

namespace Simulator::Control {

/// {"width", "height", "scale"}, as `phone.start` takes it.
Json describeScreen();

class FrameFeed {
public:
    /// {"screen": {"width", "height", "scale"}, "pixels": [width, height], "tiles": indices, "seconds"}
    Json draw(UIWindow&, const std::string& path);

private:
    std::vector<std::size_t> write(const std::vector<Graphics::PixelRect>& damage, const Graphics::FrameView&);
    bool writeTile(std::size_t index, const Graphics::FrameView&, bool isNew);

    ScreenRenderer m_renderer;
    std::unique_ptr<SharedFrame> m_frame;
};

}
