// Pictures.
#pragma once

#include "Platform/CoreGraphics/CGContext.hpp"
#include "Platform/Foundation/NSData.hpp"
#include "Platform/UIKit/UIColor.hpp"

namespace UI {

enum class ImageRenderingMode : long { automatic = 0, alwaysOriginal = 1, alwaysTemplate = 2 };

class Image : public ObjC::Class_<Image, NS::Object, "UIImage"> {
public:
    using Class_::Class_;

    /// The picture in a file; nil if there is none.
    static Image imageWithContentsOfFile(const NS::String& path)
    {
        return sendClass<Image, "imageWithContentsOfFile:">(path);
    }
    static Image imageWithData(const NS::Data& data) { return sendClass<Image, "imageWithData:">(data); }
    static Image imageNamed(const NS::String& name) { return sendClass<Image, "imageNamed:">(name); }
    static Image systemImageNamed(const NS::String& symbol) { return sendClass<Image, "systemImageNamed:">(symbol); }
    CGSize size() const { return send<CGSize, "size">(); }
    CGFloat scale() const { return send<CGFloat, "scale">(); }
    CGImageRef CGImage() const { return send<CGImageRef, "CGImage">(); }
    ImageRenderingMode renderingMode() const { return send<ImageRenderingMode, "renderingMode">(); }
    Image imageWithRenderingMode(ImageRenderingMode mode) const { return send<Image, "imageWithRenderingMode:">(mode); }
    Image imageWithTintColor(const Color& color) const { return send<Image, "imageWithTintColor:">(color); }
    /// Draws into the current image context.
    void drawInRect(CGRect rect) const { send<void, "drawInRect:">(rect); }
};

}

extern "C" {
/// The picture as PNG bytes (autoreleased); nil for nil.
id UIImagePNGRepresentation(id image);
void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, CGFloat scale);
id UIGraphicsGetImageFromCurrentImageContext();
void UIGraphicsEndImageContext();
}
