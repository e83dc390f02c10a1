// Attributed text as its runs: the stretches that have the same attributes.
#pragma once

#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/Foundation/NSDictionary.hpp"

#include <string>
#include <vector>

namespace Simulator {

struct AttributedRun {
    /// Well-formed UTF-8, whatever the text holds.
    std::string string;
    NS::Dictionary attributes;
    /// The value of one attribute; nil if the run has none of that name.
    ObjC::Object attribute(const char* name) const;
};

std::vector<AttributedRun> runsOf(const NS::AttributedString& text);
/// The same text without one attribute.
NS::AttributedString withoutAttribute(const NS::AttributedString& text, const char* name);
/// Well-formed UTF-8 of any string; lone surrogates become the replacement character.
std::string plainUtf8(const NS::String& text);

}
