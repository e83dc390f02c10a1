// Bitmaps that are costly to make (scaled pictures, gradients, blurred backdrops, shadows), kept while they are shown.
#pragma once

#include "Simulator/Graphics/DisplayItem.hpp"
#include "Simulator/Graphics/Handles.hpp"

#include <cstdint>
#include <functional>
#include <unordered_map>

namespace Simulator::Graphics {

/// Lies on the screen's pixels one to one.
struct Bitmap {
    SurfacePointer surface;
    PixelRect place;
    bool isOpaque = false;

    /// Blank; a null surface if there is no memory for it.
    static Bitmap blank(cairo_format_t format, const PixelRect& place);
    /// Draws in the screen's pixel coordinates.
    CanvasPointer canvas() const;
    std::size_t byteCount() const;
};

class BitmapCache {
public:
    /// A failure to make it is remembered, too: its surface is null.
    const Bitmap& find(std::uint64_t key, const std::function<Bitmap()>& make);
    /// Keeps what the list shows, and of the rest what was shown last.
    void endFrame(const DisplayList& list);

private:
    struct Entry {
        Bitmap bitmap;
        std::uint64_t lastFrame = 0;
    };

    void markUsed(const DisplayList& list);
    void forgetOldest();

    std::unordered_map<std::uint64_t, Entry> m_entries;
    std::uint64_t m_frame = 0;
};

}
