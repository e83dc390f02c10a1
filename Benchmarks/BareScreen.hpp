// A screen drawn by bare Cairo and Pango calls: everything that can be prepared is, only the drawing remains.
#pragma once

#include "Simulator/Graphics/Compositor.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Graphics/Handles.hpp"

#include <filesystem>
#include <functional>
#include <vector>

namespace Benchmarks {

class BareScreen {
public:
    /// Prepares pictures, blurred backgrounds and text layouts of the tree. `fontFiles` are all that it may need.
    BareScreen(const Simulator::Graphics::Layer& screen, Simulator::Graphics::FontCatalogue& catalogue,
        const std::vector<std::filesystem::path>& fontFiles, double scale);

    /// Draws one frame.
    void draw();

    /// How far the channels are from another frame's on average, of 255.
    double distanceFrom(const Simulator::Graphics::FrameView& frame) const;

private:
    using Layer = Simulator::Graphics::Layer;
    struct Place;

    void add(const Layer& layer, const Place& parent);
    void addFill(const Layer& layer, const Place& place);
    void addBorder(const Layer& layer, const Place& place);
    void addPicture(const Layer& layer, const Place& place);
    void addBackdrop(const Layer& layer, const Place& place);
    void addText(const Simulator::Graphics::Text& text, const Place& place);
    Simulator::Graphics::PangoLayoutPointer layoutOf(const Simulator::Graphics::Text& text, const Place& place) const;

    Simulator::Graphics::FontCatalogue& m_catalogue;
    double m_scale;
    /// The screen as it is behind what stands on blurred backgrounds.
    Simulator::Graphics::Compositor m_backgrounds;
    Simulator::Graphics::FontMapPointer m_fontMap;
    Simulator::Graphics::PangoContextPointer m_context;
    Simulator::Graphics::SurfacePointer m_surface;
    std::vector<std::function<void(cairo_t*)>> m_steps;
};

}
