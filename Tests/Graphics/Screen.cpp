// Reads the frame's pixels.
#include "Screen.hpp"

#include "SampleFonts.hpp"

namespace Simulator::Graphics::Samples {

Screen::Screen(Size points, double scale, Backing backing)
    : Screen(points, scale, systemCatalogue(), backing)
{
}

Screen::Screen(Size points, double scale, FontCatalogue& catalogue, Backing backing)
    : m_size(points)
    , m_compositor(catalogue, points, scale, backing)
{
}

std::vector<PixelRect> Screen::show(std::vector<Layer> layers)
{
    Layer root = Layer::withFrame({0, 0, m_size.width, m_size.height});
    root.children = std::move(layers);
    return m_compositor.render(root);
}

Rgba Screen::at(int x, int y) const
{
    const FrameView view = m_compositor.pixels();
    const std::uint8_t* pixel = view.pixels + y * view.stride + x * 4;
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

PixelRect Screen::lit() const
{
    const FrameView view = m_compositor.pixels();
    PixelRect lit;
    for (int y = 0; y < view.height; ++y) {
        for (int x = 0; x < view.width; ++x) {
            const Rgba color = at(x, y);
            if (color.r != 0 || color.g != 0 || color.b != 0)
                lit = lit.unionWith({x, y, 1, 1});
        }
    }
    return lit;
}

long Screen::light() const
{
    const FrameView view = m_compositor.pixels();
    long sum = 0;
    for (int y = 0; y < view.height; ++y) {
        for (int x = 0; x < view.width; ++x)
            sum += at(x, y).g;
    }
    return sum;
}

std::vector<std::uint8_t> Screen::bytes() const
{
    const FrameView view = m_compositor.pixels();
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < view.height; ++y)
        bytes.insert(bytes.end(), view.pixels + y * view.stride, view.pixels + y * view.stride + view.width * 4);
    return bytes;
}

Layer box(const Rect& frame, const Color& color)
{
    Layer layer = Layer::withFrame(frame);
    layer.backgroundColor = color;
    return layer;
}

Layer label(const Rect& frame, std::string text, double size)
{
    Layer layer = Layer::withFrame(frame);
    Text content;
    content.runs.push_back({std::move(text), nullptr, size, white, {}});
    layer.content = std::move(content);
    return layer;
}

Text& textOf(Layer& layer)
{
    return std::get<Text>(layer.content);
}

Layer picture(const Rect& frame, Image::Pointer image, ContentMode mode)
{
    Layer layer = Layer::withFrame(frame);
    layer.content = ImageContent{std::move(image), mode, 1, {}};
    return layer;
}

}
