// A small screen to look at: renders layers and reads pixels and covered areas back.
#pragma once

#include "SamplePictures.hpp"

#include "Simulator/Graphics/Compositor.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Graphics/Layer.hpp"

#include <string>
#include <vector>

namespace Simulator::Graphics::Samples {

class Screen {
public:
    explicit Screen(Size points, double scale = 1, Backing backing = Backing::opaqueBlack);
    Screen(Size points, double scale, FontCatalogue& catalogue, Backing backing = Backing::opaqueBlack);

    /// The layers lie in the screen's coordinates.
    std::vector<PixelRect> show(std::vector<Layer> layers);
    std::vector<PixelRect> show(const Layer& layer) { return show(std::vector<Layer>{layer}); }
    Compositor& compositor() { return m_compositor; }

    Rgba at(int x, int y) const;
    /// Around every pixel that is not black; empty if all are.
    PixelRect lit() const;
    /// The sum of the green channel: how much is covered by white drawing.
    long light() const;
    std::vector<std::uint8_t> bytes() const;

private:
    Size m_size;
    Compositor m_compositor;
};

Layer box(const Rect& frame, const Color& color);
Layer label(const Rect& frame, std::string text, double size = 20);
Text& textOf(Layer& layer);
Layer picture(const Rect& frame, Image::Pointer image, ContentMode mode = ContentMode::scaleToFill);

constexpr Color white{1, 1, 1, 1};
constexpr Color red{1, 0, 0, 1};
constexpr Color green{0, 1, 0, 1};
constexpr Color blue{0, 0, 1, 1};

}
