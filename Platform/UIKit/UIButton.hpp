// A button with a title, a picture, or both.
#pragma once

#include "Platform/UIKit/UIControl.hpp"
#include "Platform/UIKit/UIImageView.hpp"
#include "Platform/UIKit/UILabel.hpp"

namespace UI {

enum class ButtonType : long { custom = 0, system = 1 };

class Button : public ObjC::Class_<Button, Control, "UIButton"> {
public:
    using Class_::Class_;

    static Button buttonWithType(ButtonType type) { return sendClass<Button, "buttonWithType:">(type); }
    void setTitle(const NS::String& title, ControlState state = ControlState::normal) const
    {
        send<void, "setTitle:forState:">(title, state);
    }
    NS::String titleForState(ControlState state) const { return send<NS::String, "titleForState:">(state); }
    NS::String currentTitle() const { return send<NS::String, "currentTitle">(); }
    void setTitleColor(const Color& color, ControlState state = ControlState::normal) const
    {
        send<void, "setTitleColor:forState:">(color, state);
    }
    void setImage(const Image& image, ControlState state = ControlState::normal) const
    {
        send<void, "setImage:forState:">(image, state);
    }
    Image imageForState(ControlState state) const { return send<Image, "imageForState:">(state); }
    Label titleLabel() const { return send<Label, "titleLabel">(); }
    ImageView imageView() const { return send<ImageView, "imageView">(); }
    void setContentEdgeInsets(UIEdgeInsets insets) const { send<void, "setContentEdgeInsets:">(insets); }
};

}
