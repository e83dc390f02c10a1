// Four colours that suit a picture, as an object.
#pragma once

#include "Platform/UIKit/UIColor.hpp"

namespace LYR {

class WKSPalette : public ObjC::Class_<WKSPalette, NS::Object, "WKSPalette"> {
public:
    using Class_::Class_;

    UI::Color background() const { return send<UI::Color, "background">(); }
    void setBackground(const UI::Color& color) const { send<void, "setBackground:">(color); }
    UI::Color primary() const { return send<UI::Color, "primary">(); }
    void setPrimary(const UI::Color& color) const { send<void, "setPrimary:">(color); }
    UI::Color secondary() const { return send<UI::Color, "secondary">(); }
    void setSecondary(const UI::Color& color) const { send<void, "setSecondary:">(color); }
    UI::Color detail() const { return send<UI::Color, "detail">(); }
    void setDetail(const UI::Color& color) const { send<void, "setDetail:">(color); }
};

/// Makes the class `WKSPalette` known to the runtime.
void registerPaletteClass();

}
