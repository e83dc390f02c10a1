// One shadow for every text, as the settings want it.
#include "Tweak/TextShadow.hpp"

#include "Tweak/Settings.hpp"

namespace LYR {

void applyTextShadow(const UI::Label& label, const TextShadow& shadow)
{
    auto colour = _shadowText ? storedColour(Product::shadowColourKey) : UI::Color::clearColor();
    auto layer = label.layer();
    layer.setShadowOpacity(0.7f);
    layer.setShadowColor(colour.CGColor());
    layer.setShadowRadius(shadow.radius);
    layer.setShadowOffset(shadow.offset);
}

}
