// Icons of the resource folder, which take the colour of the text or view that shows them.
#pragma once

#include "Platform/UIKit/UIImage.hpp"

namespace LYR {

/// The image as one that is drawn in its surroundings' colour.
inline UI::Image templateImage(const UI::Image& image)
{
    return image.imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate);
}

/// The image by way of its PNG bytes, as a template; nil for nil.
inline UI::Image templateThroughPNG(const UI::Image& picture)
{
    return picture ? templateImage(UI::Image::imageWithData(NS::Data(UIImagePNGRepresentation(picture.raw()))))
                   : UI::Image();
}

/// A template in a colour of its own, for the beginning of a text, where some systems draw templates black. What has
/// its own colours keeps them.
inline UI::Image inkedImage(const UI::Image& picture, const UI::Color& colour)
{
    if (picture.renderingMode() != UI::ImageRenderingMode::alwaysTemplate)
        return picture;
    return picture.imageWithTintColor(colour).imageWithRenderingMode(UI::ImageRenderingMode::alwaysOriginal);
}

/// A picture of the resource folder as a template; nil without one. Read anew each time.
inline UI::Image resourceIcon(const NS::String& path)
{
    return templateThroughPNG(UI::Image::imageWithContentsOfFile(path));
}

}
