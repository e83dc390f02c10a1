// Text with attributes and attachments.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace NS {

class TextAttachment;

class AttributedString : public ObjC::Class_<AttributedString, Object, "NSAttributedString"> {
public:
    using Class_::Class_;

    static AttributedString withString(const String& text) { return make<"initWithString:">(text); }
    template <ObjC::Handle Attachment = TextAttachment>
    static AttributedString attributedStringWithAttachment(const Attachment& attachment)
    {
        return sendClass<AttributedString, "attributedStringWithAttachment:">(attachment);
    }
    String string() const { return send<String, "string">(); }
    unsigned long length() const { return send<unsigned long, "length">(); }
};

class MutableAttributedString
    : public ObjC::Class_<MutableAttributedString, AttributedString, "NSMutableAttributedString"> {
public:
    using Class_::Class_;

    static MutableAttributedString withString(const String& text) { return make<"initWithString:">(text); }
    static MutableAttributedString withAttributedString(const AttributedString& text)
    {
        return make<"initWithAttributedString:">(text);
    }
    void appendAttributedString(const AttributedString& text) const { send<void, "appendAttributedString:">(text); }
};

}
