// A string literal as a template argument: selectors and class names are spelled where they are used.
#pragma once

#include <array>
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

/// One text behind the other.
template <std::size_t firstSize, std::size_t secondSize>
constexpr std::array<char, firstSize + secondSize - 1> joined(
    const FixedString<firstSize>& first, const FixedString<secondSize>& second)
{
    std::array<char, firstSize + secondSize - 1> text{};
    for (std::size_t i = 0; i < firstSize - 1; ++i)
        text[i] = first.text[i];
    for (std::size_t i = 0; i < secondSize; ++i)
        text[firstSize - 1 + i] = second.text[i];
    return text;
}

}
