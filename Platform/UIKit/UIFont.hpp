// Fonts for labels.
#pragma once

#include "Platform/CoreGraphics/CGGeometry.hpp"
#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace UI {

class Font : public ObjC::Class_<Font, NS::Object, "UIFont"> {
public:
    using Class_::Class_;

    /// The installed font of that PostScript name; nil if there is none.
    static Font fontWithName(const NS::String& name, CGFloat size)
    {
        return sendClass<Font, "fontWithName:size:">(name, size);
    }
    static Font systemFontOfSize(CGFloat size) { return sendClass<Font, "systemFontOfSize:">(size); }
    static Font boldSystemFontOfSize(CGFloat size) { return sendClass<Font, "boldSystemFontOfSize:">(size); }
    static NS::Array familyNames() { return sendClass<NS::Array, "familyNames">(); }
    static NS::Array fontNamesForFamilyName(const NS::String& family)
    {
        return sendClass<NS::Array, "fontNamesForFamilyName:">(family);
    }
    Font fontWithSize(CGFloat size) const { return send<Font, "fontWithSize:">(size); }
    NS::String fontName() const { return send<NS::String, "fontName">(); }
    NS::String familyName() const { return send<NS::String, "familyName">(); }
    CGFloat pointSize() const { return send<CGFloat, "pointSize">(); }
    CGFloat capHeight() const { return send<CGFloat, "capHeight">(); }
    CGFloat lineHeight() const { return send<CGFloat, "lineHeight">(); }
};

}
