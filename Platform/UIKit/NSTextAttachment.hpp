// A picture that stands in a line of text.
#pragma once

#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/UIKit/UIImage.hpp"

namespace NS {

class TextAttachment : public ObjC::Class_<TextAttachment, Object, "NSTextAttachment"> {
public:
    using Class_::Class_;

    /// Relative to the baseline, y upwards.
    void setBounds(CGRect bounds) const { send<void, "setBounds:">(bounds); }
    CGRect bounds() const { return send<CGRect, "bounds">(); }
    void setImage(const UI::Image& image) const { send<void, "setImage:">(image); }
    UI::Image image() const { return send<UI::Image, "image">(); }
};

}
