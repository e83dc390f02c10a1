// Owning pointers for the objects of the drawing libraries.
#pragma once

#include <cairo.h>
#include <fontconfig/fontconfig.h>
#include <pango/pango.h>

#include <memory>

namespace Simulator::Graphics {

template <auto release>
struct Releaser {
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};

template <typename T, auto release>
using Handle = std::unique_ptr<T, Releaser<release>>;

using SurfacePointer = Handle<cairo_surface_t, cairo_surface_destroy>;
using CanvasPointer = Handle<cairo_t, cairo_destroy>;
using PatternPointer = Handle<cairo_pattern_t, cairo_pattern_destroy>;
using FontOptionsPointer = Handle<cairo_font_options_t, cairo_font_options_destroy>;
using FontPatternPointer = Handle<FcPattern, FcPatternDestroy>;
using FontConfigurationPointer = Handle<FcConfig, FcConfigDestroy>;
using FontMapPointer = Handle<PangoFontMap, g_object_unref>;
using PangoContextPointer = Handle<PangoContext, g_object_unref>;
using PangoLayoutPointer = Handle<PangoLayout, g_object_unref>;
using PangoLinePointer = Handle<PangoLayoutLine, pango_layout_line_unref>;
using LineIteratorPointer = Handle<PangoLayoutIter, pango_layout_iter_free>;

}
