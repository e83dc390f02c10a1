// UTF-8, base 64 and calendar dates in property lists.
#include "Simulator/Text/PropertyListCoding.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace Simulator {

namespace {

constexpr std::string_view base64Alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint32_t replacementCharacter = 0xFFFD;
constexpr auto referenceDay = std::chrono::sys_days(std::chrono::year(2001) / 1 / 1);

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

// How many bytes the sequence at the front takes; 0 if it is none of the well-formed ones.
std::size_t sequenceLength(std::string_view bytes)
{
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80 ? 1
        : lead < 0xC2                      ? 0
        : lead < 0xE0                      ? 2
        : lead < 0xF0                      ? 3
        : lead < 0xF5                      ? 4
                                           : 0;
    if (length == 0 || length > bytes.size())
        return 0;
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
    const bool beyond = lead == 0xF4 && byte(1) >= 0x90;
    return overlong || surrogate || beyond ? 0 : length;
}

}

void appendUtf8(std::string& text, std::uint32_t codePoint)
{
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint < 0xE000))
        codePoint = replacementCharacter;
    const auto tail = [&](int shift) { return static_cast<char>(0x80 | (codePoint >> shift & 0x3F)); };
    if (codePoint < 0x80)
        text += static_cast<char>(codePoint);
    else if (codePoint < 0x800)
        text += {static_cast<char>(0xC0 | codePoint >> 6), tail(0)};
    else if (codePoint < 0x10000)
        text += {static_cast<char>(0xE0 | codePoint >> 12), tail(6), tail(0)};
    else
        text += {static_cast<char>(0xF0 | codePoint >> 18), tail(12), tail(6), tail(0)};
}

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string utf8OfUtf16Bytes(std::string_view bytes, bool bigEndian)
{
    const auto unitAt = [&](std::size_t at) -> std::uint32_t {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return bigEndian ? first << 8 | second : second << 8 | first;
    };
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE")) {
        bigEndian = bytes[0] == '\xFE';
        bytes.remove_prefix(2);
    }
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        std::uint32_t unit = unitAt(at);
        if (unit >= 0xD800 && unit < 0xDC00 && at + 3 < bytes.size()) {
            const std::uint32_t low = unitAt(at + 2);
            if (low >= 0xDC00 && low < 0xE000) {
                unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                at += 2;
            }
        }
        appendUtf8(text, unit);
    }
    return text;
}

std::optional<std::string> decodeBase64(std::string_view text)
{
    std::string bytes;
    constexpr int surplusBits[] = {0, 6, 4, 2}; // after so many characters of a group of four
    std::uint32_t bits = 0;
    int count = 0;
    int padding = 0;
    for (const char character : text) {
        if (isSpace(character))
            continue;
        if (character == '=' && ++padding)
            continue;
        const std::size_t digit = base64Alphabet.find(character);
        if (digit == std::string_view::npos || padding > 0)
            return std::nullopt;
        bits = bits << 6 | static_cast<std::uint32_t>(digit);
        if (++count % 4 != 1)
            bytes += static_cast<char>(bits >> surplusBits[count % 4] & 0xFF);
    }
    return count % 4 == 1 || padding > 2 ? std::nullopt : std::optional(bytes);
}

std::string encodeBase64(std::string_view bytes)
{
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
        std::uint32_t bits = 0;
        for (std::size_t next = 0; next < 3; ++next)
            bits = bits << 8 | (next < count ? static_cast<unsigned char>(bytes[at + next]) : 0);
        for (std::size_t digit = 0; digit < 4; ++digit)
            text += digit <= count ? base64Alphabet[bits >> (18 - 6 * digit) & 0x3F] : '=';
    }
    return text;
}

std::optional<double> decodeDate(std::string_view text)
{
    std::array<int, 6> fields{};
    constexpr std::string_view separators = "--T::Z";
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), fields[index]);
        if (error != std::errc() || end == text.data() + text.size() || *end != separators[index])
            return std::nullopt;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    }
    const auto [year, month, day, hour, minute, second] = fields;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
        std::chrono::day(static_cast<unsigned>(day))};
    const auto fits = [](int value, int limit) { return value >= 0 && value < limit; };
    if (!text.empty() || !date.ok() || !fits(hour, 25) || !fits(minute, 60) || !fits(second, 62))
        return std::nullopt;
    const auto days = (std::chrono::sys_days(date) - referenceDay).count();
    return days * 86400.0 + hour * 3600.0 + minute * 60.0 + second;
}

std::string encodeDate(double secondsSince2001)
{
    constexpr double furthest = 9e11; // beyond, the calendar's year number overflows
    const double bounded = std::isnan(secondsSince2001) ? 0 : std::clamp(secondsSince2001, -furthest, furthest);
    const auto whole = static_cast<std::int64_t>(std::floor(bounded));
    const auto moment = std::chrono::sys_seconds(referenceDay) + std::chrono::seconds(whole);
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(moment - day);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
        static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return text;
}

}
