// Draws a display list.
#pragma once

#include "Simulator/Graphics/BitmapCache.hpp"
#include "Simulator/Graphics/DisplayItem.hpp"
#include "Simulator/Graphics/Handles.hpp"

namespace Simulator::Graphics {

class Painter {
public:
    /// The list is the whole screen's: a backdrop blurs what of it lies behind. `ground` lies behind all.
    Painter(BitmapCache& bitmaps, const DisplayList& list, Color ground);

    /// Draws what of the screen lies in the region.
    void paint(cairo_surface_t* surface, const PixelRect& region);

private:
    void paintList(cairo_t* canvas, const DisplayList& list, const PixelRect& region);
    void paintItem(cairo_t* canvas, const DisplayItem& item, const PixelRect& region);
    void paintFill(cairo_t* canvas, const DisplayItem& item, const Fill& fill);
    void paintGlyphs(cairo_t* canvas, const DisplayItem& item, const Glyphs& glyphs);
    void paintPicture(cairo_t* canvas, const DisplayItem& item, const Picture& picture);
    void paintGroup(cairo_t* canvas, const DisplayItem& item, const Group& group, const PixelRect& region);
    void paintShadow(cairo_t* canvas, const DisplayItem& item, const Group& group);
    bool paintUntil(cairo_t* canvas, const DisplayList& list, const DisplayItem& stop, const PixelRect& region);
    Bitmap backdropBitmap(const DisplayItem& item, const Backdrop& backdrop);
    bool hides(const DisplayItem& item, const PixelRect& region);

    BitmapCache& m_bitmaps;
    const DisplayList& m_list;
    Color m_ground;
};

}
