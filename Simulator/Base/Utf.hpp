// Text as UTF-8 and UTF-16. What is ill-formed becomes U+FFFD.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Simulator {

std::u16string toUtf16(std::string_view utf8);
std::string toUtf8(std::u16string_view text);
bool isUtf8(std::string_view bytes);
void appendUtf8(std::string& text, std::uint32_t codePoint);

}
