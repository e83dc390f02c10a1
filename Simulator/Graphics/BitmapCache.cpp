// The keeping and forgetting of bitmaps.
#include "Simulator/Graphics/BitmapCache.hpp"

#include <algorithm>

namespace Simulator::Graphics {

namespace {

/// For bitmaps that are not on the screen at present.
constexpr std::size_t spareBytes = 64u << 20;
constexpr std::size_t spareCount = 256;

}

Bitmap Bitmap::blank(cairo_format_t format, const PixelRect& place)
{
    Bitmap bitmap{SurfacePointer(cairo_image_surface_create(format, place.width, place.height)), place};
    if (cairo_surface_status(bitmap.surface.get()) != CAIRO_STATUS_SUCCESS)
        bitmap.surface = nullptr;
    else
        cairo_surface_set_device_offset(bitmap.surface.get(), -place.x, -place.y);
    return bitmap;
}

CanvasPointer Bitmap::canvas() const
{
    return CanvasPointer(cairo_create(surface.get()));
}

std::size_t Bitmap::byteCount() const
{
    if (!surface)
        return 0;
    return static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()))
        * static_cast<std::size_t>(place.height);
}

const Bitmap& BitmapCache::find(std::uint64_t key, const std::function<Bitmap()>& make)
{
    auto found = m_entries.find(key);
    if (found == m_entries.end()) {
        // Making it may ask for other bitmaps.
        Bitmap made = make();
        found = m_entries.try_emplace(key).first;
        found->second.bitmap = std::move(made);
    }
    found->second.lastFrame = m_frame;
    return found->second.bitmap;
}

void BitmapCache::markUsed(const DisplayList& list)
{
    for (const auto& item : list) {
        if (const auto found = m_entries.find(item.bitmapKey); found != m_entries.end())
            found->second.lastFrame = m_frame;
        if (const auto* group = std::get_if<Group>(&item.content))
            markUsed(group->items);
    }
}

void BitmapCache::forgetOldest()
{
    std::vector<std::pair<std::uint64_t, std::uint64_t>> spare;
    std::size_t bytes = 0;
    for (const auto& [key, entry] : m_entries) {
        if (entry.lastFrame == m_frame)
            continue;
        spare.emplace_back(entry.lastFrame, key);
        bytes += entry.bitmap.byteCount();
    }
    std::sort(spare.begin(), spare.end());
    std::size_t count = spare.size();
    for (const auto& [frame, key] : spare) {
        if (bytes <= spareBytes && count <= spareCount)
            break;
        const auto found = m_entries.find(key);
        bytes -= found->second.bitmap.byteCount();
        --count;
        m_entries.erase(found);
    }
}

void BitmapCache::endFrame(const DisplayList& list)
{
    markUsed(list);
    forgetOldest();
    ++m_frame;
}

}
