// Walks attributed text run by run, and makes sound UTF-8 of whatever a string holds.
#include "Simulator/UIKit/AttributedRuns.hpp"

#include "Simulator/Base/Utf.hpp"
#include "Simulator/Foundation/Texts.hpp"

namespace Simulator {

namespace {

/// As the Foundation lays a range out.
struct Range {
    unsigned long location = 0;
    unsigned long length = 0;
};

}

ObjC::Object AttributedRun::attribute(const char* name) const
{
    return attributes.send<ObjC::Object, "objectForKey:">(NS::String::fromUTF8(name));
}

std::vector<AttributedRun> runsOf(const NS::AttributedString& text)
{
    std::vector<AttributedRun> runs;
    const std::u16string units = utf16Of(text.string());
    for (unsigned long position = 0; position < units.size();) {
        Range range;
        const auto attributes
            = text.send<NS::Dictionary, "attributesAtIndex:effectiveRange:">(position, static_cast<void*>(&range));
        const unsigned long end = std::min<unsigned long>(range.location + range.length, units.size());
        if (end <= position)
            break;
        runs.push_back({toUtf8(std::u16string_view(units).substr(position, end - position)), attributes});
        position = end;
    }
    return runs;
}

NS::AttributedString withoutAttribute(const NS::AttributedString& text, const char* name)
{
    const auto changed = NS::MutableAttributedString::withAttributedString(text);
    changed.send<void, "removeAttribute:range:">(NS::String::fromUTF8(name), Range{0, changed.length()});
    return changed;
}

std::string plainUtf8(const NS::String& text)
{
    return textOf(text);
}

}
