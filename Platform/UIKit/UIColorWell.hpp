// A well of one colour; a tap opens the system's sheet to choose another.
#pragma once

#include "Platform/UIKit/UIControl.hpp"

namespace UI {

class ColorWell : public ObjC::Class_<ColorWell, Control, "UIColorWell"> {
public:
    using Class_::Class_;

    NS::String title() const { return send<NS::String, "title">(); }
    void setTitle(const NS::String& title) const { send<void, "setTitle:">(title); }
    Color selectedColor() const { return send<Color, "selectedColor">(); }
    void setSelectedColor(const Color& color) const { send<void, "setSelectedColor:">(color); }
    bool supportsAlpha() const { return send<bool, "supportsAlpha">(); }
    void setSupportsAlpha(bool supports) const { send<void, "setSupportsAlpha:">(supports); }
};

}
