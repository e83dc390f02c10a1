// A picture on the screen.
#pragma once

#include "Platform/UIKit/UIImage.hpp"
#include "Platform/UIKit/UIView.hpp"

namespace UI {

class ImageView : public ObjC::Class_<ImageView, View, "UIImageView"> {
public:
    using Class_::Class_;

    static ImageView withImage(const Image& image) { return make<"initWithImage:">(image); }
    Image image() const { return send<Image, "image">(); }
    void setImage(const Image& image) const { send<void, "setImage:">(image); }
};

}
