// Icons of the resource folder, which take the colour of the text or view that shows them.
#pragma once

#include "Platform/UIKit/UIImage.hpp"

namespace LYR {

/// The image as one that is drawn in its surroundings' colour.
inline UI::Image templateImage(const UI::Image& image)
{
    return image.imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate);
}

/// The picture in a file by way of its PNG bytes, as a template; nil without one. Read anew each time.
inline UI::Image templateFromPNG(const NS::String& path)
{
    auto picture = UI::Image::imageNamed(path);
    return picture ? templateImage(UI::Image::imageWithData(NS::Data(UIImagePNGRepresentation(picture.raw()))))
                   : UI::Image();
}

}
