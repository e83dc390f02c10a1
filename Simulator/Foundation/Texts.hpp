// Between Foundation's strings and the plain texts of the simulator.
#pragma once

#include "Platform/Foundation/NSString.hpp"

#include <string>
#include <string_view>

namespace Simulator {

inline std::u16string utf16Of(const NS::String& string)
{
    std::u16string text(string.length(), u'\0');
    if (!text.empty())
        string.send<void, "getCharacters:">(text.data());
    return text;
}

/// UTF-8 of any string, also of one that UTF8String refuses to give; empty for nil.
std::string textOf(const NS::String& string);

/// Never nil: lone surrogates, which Foundation's strings refuse, become U+FFFD.
NS::String stringOf(std::u16string_view text);
NS::String stringOf(std::string_view utf8);

}
