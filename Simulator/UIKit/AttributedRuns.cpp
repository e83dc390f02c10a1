// Walks attributed text run by run, and makes sound UTF-8 of whatever a string holds.
#include "Simulator/UIKit/AttributedRuns.hpp"

namespace Simulator {

namespace {

/// As the Foundation lays a range out.
struct Range {
    unsigned long location = 0;
    unsigned long length = 0;
};

void appendUtf8(std::string& text, std::uint32_t scalar)
{
    const auto continuation = [&](int shift) { text += static_cast<char>(0x80 | ((scalar >> shift) & 0x3f)); };
    if (scalar < 0x80)
        text += static_cast<char>(scalar);
    else if (scalar < 0x800) {
        text += static_cast<char>(0xc0 | (scalar >> 6));
        continuation(0);
    } else if (scalar < 0x10000) {
        text += static_cast<char>(0xe0 | (scalar >> 12));
        continuation(6);
        continuation(0);
    } else {
        text += static_cast<char>(0xf0 | (scalar >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

bool isLeading(char16_t unit)
{
    return unit >= 0xd800 && unit < 0xdc00;
}

bool isTrailing(char16_t unit)
{
    return unit >= 0xdc00 && unit < 0xe000;
}

std::string utf8Of(std::u16string_view units)
{
    std::string text;
    text.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (isLeading(units[i]) && i + 1 < units.size() && isTrailing(units[i + 1])) {
            appendUtf8(text, 0x10000 + ((units[i] - 0xd800) << 10) + (units[i + 1] - 0xdc00));
            ++i;
        } else
            appendUtf8(text, isLeading(units[i]) || isTrailing(units[i]) ? 0xfffd : units[i]);
    }
    return text;
}

std::u16string unitsOf(const NS::String& text)
{
    std::u16string units(text.length(), 0);
    if (!units.empty())
        text.send<void, "getCharacters:">(static_cast<void*>(units.data()));
    return units;
}

}

ObjC::Object AttributedRun::attribute(const char* name) const
{
    return attributes.send<ObjC::Object, "objectForKey:">(NS::String::fromUTF8(name));
}

std::vector<AttributedRun> runsOf(const NS::AttributedString& text)
{
    std::vector<AttributedRun> runs;
    const std::u16string units = unitsOf(text.string());
    for (unsigned long position = 0; position < units.size();) {
        Range range;
        const auto attributes
            = text.send<NS::Dictionary, "attributesAtIndex:effectiveRange:">(position, static_cast<void*>(&range));
        const unsigned long end = std::min<unsigned long>(range.location + range.length, units.size());
        if (end <= position)
            break;
        runs.push_back({utf8Of(std::u16string_view(units).substr(position, end - position)), attributes});
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
    return utf8Of(unitsOf(text));
}

}
