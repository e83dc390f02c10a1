// UTF-16, base 64 and calendar dates in property lists.
#include "Simulator/Text/PropertyListCoding.hpp"

#include "Simulator/Base/Base64.hpp"
#include "Simulator/Base/Utf.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace Simulator {

namespace {

constexpr auto referenceDay = std::chrono::sys_days(std::chrono::year(2001) / 1 / 1);

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

}

std::string utf8OfUtf16Bytes(std::string_view bytes, bool bigEndian)
{
    const auto unitAt = [&](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first);
    };
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE")) {
        bigEndian = bytes[0] == '\xFE';
        bytes.remove_prefix(2);
    }
    std::u16string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2)
        text += unitAt(at);
    return toUtf8(text);
}

std::optional<std::string> decodeBase64(std::string_view text)
{
    std::string plain;
    std::ranges::copy_if(text, std::back_inserter(plain), [](char character) { return !isSpace(character); });
    const std::size_t digits = plain.find_last_not_of('=') + 1;
    if (plain.size() - digits > 2)
        return std::nullopt;
    plain.resize(digits);
    plain.append((4 - digits % 4) % 4, '=');
    return fromBase64(plain);
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
