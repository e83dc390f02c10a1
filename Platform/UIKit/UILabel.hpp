// Text on the screen.
#pragma once

#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/UIKit/UIFont.hpp"
#include "Platform/UIKit/UIView.hpp"

namespace UI {

enum class TextAlignment : long { left = 0, center = 1, right = 2, natural = 4 };
enum class LineBreakMode : long {
    wordWrapping = 0,
    charWrapping = 1,
    clipping = 2,
    truncatingHead = 3,
    truncatingTail = 4,
    truncatingMiddle = 5
};

class Label : public ObjC::Class_<Label, View, "UILabel"> {
public:
    using Class_::Class_;

    NS::String text() const { return send<NS::String, "text">(); }
    void setText(const NS::String& text) const { send<void, "setText:">(text); }
    NS::AttributedString attributedText() const { return send<NS::AttributedString, "attributedText">(); }
    void setAttributedText(const NS::AttributedString& text) const { send<void, "setAttributedText:">(text); }
    Font font() const { return send<Font, "font">(); }
    void setFont(const Font& font) const { send<void, "setFont:">(font); }
    Color textColor() const { return send<Color, "textColor">(); }
    void setTextColor(const Color& color) const { send<void, "setTextColor:">(color); }
    TextAlignment textAlignment() const { return send<TextAlignment, "textAlignment">(); }
    void setTextAlignment(TextAlignment alignment) const { send<void, "setTextAlignment:">(alignment); }
    long numberOfLines() const { return send<long, "numberOfLines">(); }
    void setNumberOfLines(long lines) const { send<void, "setNumberOfLines:">(lines); }
    void setAdjustsFontSizeToFitWidth(bool adjusts) const { send<void, "setAdjustsFontSizeToFitWidth:">(adjusts); }
    /// The smallest part of the font's size that fitting the width may leave; 0 for as small as it takes.
    void setMinimumScaleFactor(CGFloat factor) const { send<void, "setMinimumScaleFactor:">(factor); }
    void setLineBreakMode(LineBreakMode mode) const { send<void, "setLineBreakMode:">(mode); }
};

}
