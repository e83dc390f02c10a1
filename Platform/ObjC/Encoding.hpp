// Type encodings, built by the compiler from the C++ types.
#pragma once

#include "Platform/ObjC/Send.hpp"

#include <array>

namespace ObjC {

/// Characters collected at compile time.
struct EncodingText {
    std::array<char, 256> text{};
    std::size_t length = 0;

    constexpr void append(std::string_view piece)
    {
        for (char character : piece)
            text[length++] = character;
    }
    constexpr std::string_view view() const { return {text.data(), length}; }
};

/// The encoding of a structure; specialised beside the structure's definition.
template <class T>
inline constexpr std::string_view structureEncoding{};

template <class T>
consteval std::string_view encodingOf()
{
    using Value = std::remove_cvref_t<T>;
    if constexpr (std::is_void_v<Value>)
        return "v";
    else if constexpr (Handle<Value> || std::is_same_v<Value, id>)
        return "@";
    else if constexpr (std::is_same_v<Value, Class>)
        return "#";
    else if constexpr (std::is_same_v<Value, SEL>)
        return ":";
    else if constexpr (std::is_same_v<Value, bool>)
        return "B";
    else if constexpr (std::is_same_v<Value, const char*> || std::is_same_v<Value, char*>)
        return "*";
    else if constexpr (std::is_pointer_v<Value>)
        return "^v";
    else if constexpr (std::is_same_v<Value, float>)
        return "f";
    else if constexpr (std::is_same_v<Value, double>)
        return "d";
    else if constexpr (std::is_enum_v<Value>)
        return encodingOf<std::underlying_type_t<Value>>();
    else if constexpr (std::is_integral_v<Value>) {
        constexpr bool isSigned = std::is_signed_v<Value>;
        switch (sizeof(Value)) {
        case 1:
            return isSigned ? "c" : "C";
        case 2:
            return isSigned ? "s" : "S";
        case 4:
            return isSigned ? "i" : "I";
        default:
            return isSigned ? "q" : "Q";
        }
    } else {
        static_assert(!structureEncoding<Value>.empty(), "this structure has no encoding yet");
        return structureEncoding<Value>;
    }
}

/// The type string of a method: result, receiver, selector, arguments.
template <class Result, class... Arguments>
inline constexpr EncodingText methodEncoding = [] {
    EncodingText encoding;
    encoding.append(encodingOf<Result>());
    encoding.append("@:");
    (encoding.append(encodingOf<Arguments>()), ...);
    return encoding;
}();

}
