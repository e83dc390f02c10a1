// A picture that stands in a line of text, and the text that consists of one.
#pragma once

#include "Platform/UIKit/NSTextAttachment.hpp"
#include "Simulator/Runtime/StandIn.hpp"

namespace Simulator {

/// The attribute names of attributed text, as the platform spells them.
inline constexpr const char* attachmentAttribute = "NSAttachment";
inline constexpr const char* fontAttribute = "NSFont";
inline constexpr const char* colorAttribute = "NSColor";

struct NSTextAttachment : StandIn {
    using Root = NSTextAttachment;

    void initWithData(const NS::Data& data, const NS::String& type);
    void setContents(const NS::Data& data);
    /// The bounds, or the picture's own size on the baseline if they are empty.
    CGRect effectiveBounds() const;

    UI::Image image;
    CGRect bounds;
    NS::Data contents;
    NS::String fileType;
};

}
