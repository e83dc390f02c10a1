// A string literal as a template argument: selectors and class names are spelled where they are used.
#pragma once

#include <cstddef>
#include <string_view>

namespace ObjC {

template <std::size_t size>
struct FixedString {
    char text[size];

    consteval FixedString(const char (&literal)[size])
    {
        for (std::size_t i = 0; i < size; ++i)
            text[i] = literal[i];
    }
    constexpr std::string_view view() const { return {text, size - 1}; }
};

}
