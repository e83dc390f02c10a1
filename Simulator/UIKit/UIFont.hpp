// A font at a size.
#pragma once

#include "Platform/UIKit/UIFont.hpp"
#include "Simulator/Graphics/Font.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <memory>

namespace Simulator {

struct UIFont : StandIn {
    using Root = UIFont;

    static UI::Font withName(const NS::String& name, double size);
    static UI::Font systemFont(double size);
    static UI::Font systemFontOfWeight(double size, double weight);
    static UI::Font boldSystemFont(double size);
    static NS::Array familyNames();
    static NS::Array fontNamesForFamily(const NS::String& family);

    NS::String fontName() const;
    NS::String familyName() const;
    double capHeight() const;
    double ascender() const;
    double descender() const;
    double leading() const;
    double lineHeight() const;
    UI::Font withSize(double newSize) const;
    bool isEqual(const ObjC::Object& other) const;
    unsigned long hash() const;
    /// Nothing in it ever changes.
    ObjC::Object sameForCopy(void*) const { return self(); }

    /// Null where the machine has no font at all.
    std::shared_ptr<const Graphics::Font> font;
    double pointSize = 17;
};

UI::Font makeFont(const std::shared_ptr<const Graphics::Font>& font, double size);

}
