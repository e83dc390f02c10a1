// Drawings by librsvg, drawn anew at the size that is asked for.
#include "Simulator/Graphics/Handles.hpp"
#include "Simulator/Graphics/ImageSource.hpp"

#include <librsvg/rsvg.h>

#include <algorithm>
#include <cmath>

namespace Simulator::Graphics {

namespace {

using DrawingPointer = Handle<RsvgHandle, g_object_unref>;

/// Sharper than any screen; larger sizes are enlarged from here.
constexpr int sideLimit = 4'096;

class SvgSource : public ImageSource {
public:
    explicit SvgSource(std::vector<std::byte> bytes)
        : m_bytes(std::move(bytes))
    {
        const auto* data = reinterpret_cast<const guint8*>(m_bytes.data());
        m_drawing.reset(rsvg_handle_new_from_data(data, m_bytes.size(), nullptr));
        if (!m_drawing)
            return;
        rsvg_handle_set_dpi(m_drawing.get(), 72);
        gboolean hasViewBox = FALSE;
        RsvgRectangle viewBox{};
        rsvg_handle_get_intrinsic_dimensions(
            m_drawing.get(), nullptr, nullptr, nullptr, nullptr, &hasViewBox, &viewBox);
        double width = 0;
        double height = 0;
        if (rsvg_handle_get_intrinsic_size_in_pixels(m_drawing.get(), &width, &height))
            m_size = {width, height};
        else if (hasViewBox)
            m_size = {viewBox.width, viewBox.height};
    }

    bool isUsable() const
    {
        return m_size.width > 0 && m_size.height > 0 && m_size.width <= sideLimit && m_size.height <= sideLimit;
    }

    PixelSize storedSize() const override
    {
        return {static_cast<int>(std::ceil(m_size.width)), static_cast<int>(std::ceil(m_size.height))};
    }
    Size naturalSize() const override { return m_size; }
    bool isDrawing() const override { return true; }
    bool isOpaque() const override { return false; }
    std::span<const std::byte> encodedBytes() const override { return m_bytes; }

    bool decode(PixelSize wanted, RowReceiver& receiver) const override
    {
        const PixelSize size = {std::clamp(wanted.width, 1, sideLimit), std::clamp(wanted.height, 1, sideLimit)};
        const SurfacePointer surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height));
        const CanvasPointer canvas(cairo_create(surface.get()));
        const RsvgRectangle viewport = {0, 0, double(size.width), double(size.height)};
        if (!rsvg_handle_render_document(m_drawing.get(), canvas.get(), &viewport, nullptr)
            || cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
            return false;
        cairo_surface_flush(surface.get());
        if (!receiver.begin(size, {double(size.width), double(size.height)}))
            return false;
        const int stride = cairo_image_surface_get_stride(surface.get());
        for (int y = 0; y < size.height; ++y)
            receiver.row(cairo_image_surface_get_data(surface.get()) + static_cast<std::ptrdiff_t>(y) * stride);
        return true;
    }

private:
    std::vector<std::byte> m_bytes;
    DrawingPointer m_drawing;
    Size m_size;
};

}

std::shared_ptr<const ImageSource> openSvg(std::vector<std::byte> bytes)
{
    if (bytes.empty())
        return nullptr;
    auto source = std::make_shared<SvgSource>(std::move(bytes));
    return source->isUsable() ? source : nullptr;
}

}
