// Conversion of strings, tolerant of ill-formed ones.
#include "Simulator/Foundation/Texts.hpp"

#include "Simulator/Base/Utf.hpp"

namespace Simulator {

std::string textOf(const NS::String& string)
{
    return string ? toUtf8(utf16Of(string)) : std::string();
}

NS::String stringOf(std::u16string_view text)
{
    const auto make = [](std::u16string_view characters) {
        return NS::String::make<"initWithCharacters:length:">(
            static_cast<const void*>(characters.data()), static_cast<unsigned long>(characters.size()));
    };
    const NS::String string = make(text);
    return string ? string : make(toUtf16(toUtf8(text)));
}

NS::String stringOf(std::string_view utf8)
{
    const NS::String string = NS::String::fromUTF8(utf8);
    return string ? string : stringOf(toUtf16(utf8));
}

}
