// Colours that suit a picture, and tests of single colours. No state.
#pragma once

#include "Platform/UIKit/UIImage.hpp"
#include "WKSPalette/WKSPalette.hpp"

namespace LYR {

class WKSColorUtils : public ObjC::Class_<WKSColorUtils, NS::Object, "WKSColorUtils"> {
public:
    using Class_::Class_;

    /// The palette of a picture, each colour with that alpha; nil for no picture.
    static WKSPalette averageColors(const UI::Image& image, double alpha)
    {
        return sendClass<WKSPalette, "averageColors:withAlpha:">(image, alpha);
    }
    /// The background colour of the palette.
    static UI::Color averageColorNew(const UI::Image& image, double alpha)
    {
        return sendClass<UI::Color, "averageColorNew:withAlpha:">(image, alpha);
    }
    /// The plain average; the clear colour for a transparent picture, nil for none.
    static UI::Color averageColor(const UI::Image& image, double alpha)
    {
        return sendClass<UI::Color, "averageColor:withAlpha:">(image, alpha);
    }
    /// The same object if it is nil or saturated enough already.
    static UI::Color colorWithMinimumSaturation(const UI::Color& color, double saturation)
    {
        return sendClass<UI::Color, "colorWithMinimumSaturation:withSaturation:">(color, saturation);
    }
    static bool isDark(const UI::Color& color) { return sendClass<bool, "isDark:">(color); }
};

/// Makes `WKSColor`, `WKSPalette` and `WKSColorUtils` known to the runtime. Once is enough, again does no harm.
void registerWKSPalette();

}
