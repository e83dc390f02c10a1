// Base64 with padding, without line breaks.
#include "Tests/Support/Base64.hpp"

#include <cstdint>
#include <stdexcept>

namespace Support {

namespace {

constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}

std::string toBase64(std::string_view bytes)
{
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::string_view group = bytes.substr(i, 3);
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k)
            bits = bits << 8 | (k < group.size() ? static_cast<unsigned char>(group[k]) : 0u);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= group.size() ? digits[bits >> (18 - 6 * k) & 63] : '=';
    }
    return text;
}

std::string fromBase64(std::string_view text)
{
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text) {
        if (c == '=')
            break;
        const auto value = digits.find(c);
        if (value == std::string_view::npos)
            throw std::invalid_argument("no base64: " + std::string(text.substr(0, 40)));
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 0xFF);
        }
    }
    return bytes;
}

}
