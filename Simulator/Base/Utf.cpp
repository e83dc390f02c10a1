// All of it is ICU's.
#include "Simulator/Base/Utf.hpp"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace Simulator {

std::u16string toUtf16(std::string_view utf8)
{
    const auto text = icu::UnicodeString::fromUTF8({utf8.data(), static_cast<int>(utf8.size())});
    return std::u16string(text.getBuffer(), static_cast<std::size_t>(text.length()));
}

std::string toUtf8(std::u16string_view text)
{
    std::string utf8;
    return icu::UnicodeString(false, text.data(), static_cast<int>(text.size())).toUTF8String(utf8);
}

bool isUtf8(std::string_view bytes)
{
    const auto* text = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto length = static_cast<std::int64_t>(bytes.size());
    for (std::int64_t at = 0; at < length;) {
        UChar32 codePoint = 0;
        U8_NEXT(text, at, length, codePoint);
        if (codePoint < 0)
            return false;
    }
    return true;
}

void appendUtf8(std::string& text, std::uint32_t codePoint)
{
    constexpr UChar32 replacement = 0xFFFD;
    const bool isScalar = codePoint <= 0x10FFFF && !U_IS_SURROGATE(codePoint);
    icu::UnicodeString(isScalar ? static_cast<UChar32>(codePoint) : replacement).toUTF8String(text);
}

}
