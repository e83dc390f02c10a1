// The checks behind the kinds of values.
#include "Simulator/Control/Types.hpp"

#include "Simulator/Base/Base64.hpp"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <unicode/regex.h>
#include <unicode/ucal.h>
#include <unicode/unistr.h>
#include <unistd.h>

namespace Simulator::Control {

namespace {

namespace fs = std::filesystem;

bool isWithoutNul(const std::string& text)
{
    return text.find('\0') == std::string::npos;
}

/// A string that passes a check of its text.
Type textThat(std::string takes, std::function<bool(const std::string&)> accepts)
{
    return {.takes = std::move(takes), .accepts = [accepts = std::move(accepts)](const Json& value) {
                return value.is_string() && accepts(value.get_ref<const std::string&>());
            }};
}

Type hostEntry(std::string takes, bool (*accepts)(const fs::path&))
{
    return textThat(std::move(takes),
        [accepts](const std::string& path) { return !path.empty() && isWithoutNul(path) && accepts(path); });
}

bool isReadable(const fs::path& path)
{
    return access(path.c_str(), R_OK) == 0;
}

bool isFile(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_regular_file(path, ignored) && isReadable(path);
}

bool isFolder(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored) && access(path.c_str(), R_OK | W_OK | X_OK) == 0;
}

bool canBeFolder(const fs::path& path)
{
    std::error_code ignored;
    // With or without a slash at the end.
    const fs::path parent = (fs::absolute(path, ignored) / "").parent_path().parent_path();
    return isFolder(path) || (!fs::exists(fs::symlink_status(path, ignored)) && isFolder(parent));
}

std::optional<int> digits(std::string_view text, std::size_t at, std::size_t count)
{
    int value = 0;
    for (const char c : text.substr(at, count)) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

bool isLocalTime(const std::string& text)
{
    constexpr std::string_view form = "0000-00-00T00:00:00";
    if (text.size() != form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] != '0' && text[i] != form[i])
            return false;
    }
    const auto year = digits(text, 0, 4), month = digits(text, 5, 2), day = digits(text, 8, 2);
    const auto hour = digits(text, 11, 2), minute = digits(text, 14, 2), second = digits(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second)
        return false;
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
        std::chrono::day(static_cast<unsigned>(*day))};
    return *year > 0 && date.ok() && *hour < 24 && *minute < 60 && *second < 60;
}

bool isTimeZone(const std::string& name)
{
    if (name.empty() || name == "Etc/Unknown")
        return false;
    const auto wide = icu::UnicodeString::fromUTF8(name);
    UChar canonical[128];
    UErrorCode status = U_ZERO_ERROR;
    ucal_getCanonicalTimeZoneID(wide.getBuffer(), wide.length(), canonical, 128, nullptr, &status);
    return U_SUCCESS(status);
}

/// "en", "en_US", "zh-Hans-CN", "ar_SA@calendar=gregorian".
bool isLocale(const std::string& name)
{
    constexpr std::size_t longest = 120;
    if (name.size() > longest)
        return false;
    UErrorCode status = U_ZERO_ERROR;
    const auto wide = icu::UnicodeString::fromUTF8(name);
    icu::RegexMatcher form(
        u"[A-Za-z]{2,8}([-_][A-Za-z0-9]{1,8})*(@[a-z]+=[A-Za-z0-9-]+(;[a-z]+=[A-Za-z0-9-]+)*)?", wide, 0, status);
    return form.matches(status) && U_SUCCESS(status);
}

/// A property list has no null, and its texts end at a NUL.
bool isPropertyList(const Json& value)
{
    if (value.is_string())
        return isWithoutNul(value.get_ref<const std::string&>());
    if (value.is_object()) {
        for (const auto& [key, member] : value.items()) {
            if (!isWithoutNul(key) || !isPropertyList(member))
                return false;
        }
    }
    return !value.is_null() && (!value.is_array() || std::all_of(value.begin(), value.end(), isPropertyList));
}

std::string plain(double value)
{
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

std::string joined(const std::vector<std::string>& words)
{
    std::string list;
    for (const std::string& word : words)
        list += (list.empty() ? "\"" : ", \"") + word + "\"";
    return list;
}

}

Type anything()
{
    return {.takes = "any value", .accepts = [](const Json&) { return true; }};
}

Type text()
{
    return {.takes = "a string", .accepts = &Json::is_string};
}

Type storedText()
{
    return textThat("a string without NUL", isWithoutNul);
}

Type nonEmptyText()
{
    return textThat("a string that is not empty", [](const std::string& text) { return !text.empty(); });
}

Type boolean()
{
    return {.takes = "true or false", .accepts = &Json::is_boolean};
}

Type number(double least, double most)
{
    return {.takes = "a number from " + plain(least) + " to " + plain(most), .accepts = [=](const Json& value) {
                return value.is_number() && value.get<double>() >= least && value.get<double>() <= most;
            }};
}

Type oneOf(std::vector<std::string> words)
{
    std::string takes = "one of " + joined(words);
    return textThat(std::move(takes), [words = std::move(words)](const std::string& text) {
        return std::find(words.begin(), words.end(), text) != words.end();
    });
}

Type scalar()
{
    return {.takes = "a string without NUL, a number or a boolean",
        .accepts = [](const Json& value) { return !value.is_structured() && isPropertyList(value); }};
}

Type propertyList()
{
    return {.takes = "a value without null and without NUL in a text", .accepts = isPropertyList};
}

Type base64()
{
    return textThat("a string in base64", [](const std::string& text) { return fromBase64(text).has_value(); });
}

Type localTime()
{
    return textThat("a local time such as \"2020-11-15T21:41:00\"", isLocalTime);
}

Type timeZone()
{
    return textThat("the name of a time zone such as \"UTC\" or \"Asia/Jerusalem\"", isTimeZone);
}

Type locale()
{
    return textThat("the name of a locale or language such as \"en_US\" or \"he\"", isLocale);
}

Type phonePath()
{
    return textThat("an absolute path on the phone such as \"/Library/Fonts/A.ttf\"",
        [](const std::string& path) { return path.starts_with('/') && isWithoutNul(path); });
}

Type hostFile(const std::string& what)
{
    return hostEntry("the host path of " + what + " that exists", isFile);
}

Type hostFolder()
{
    return hostEntry("the host path of a folder that exists and can be written", isFolder);
}

Type hostFolderToBe()
{
    return hostEntry("the host path of a folder that can be written, or of a new one in such a folder", canBeFolder);
}

Type hostPath()
{
    return hostEntry("the host path of a file or folder that exists", isReadable);
}

Type hostDestination()
{
    return hostEntry("the host path of a file to write", [](const fs::path&) { return true; });
}

Type point()
{
    constexpr double farthest = 100'000;
    return {.takes = "a point [x, y]", .accepts = [](const Json& value) {
                return value.is_array() && value.size() == 2 && std::ranges::all_of(value, [](const Json& number) {
                    return number.is_number() && std::abs(number.get<double>()) <= farthest;
                });
            }};
}

Type object(Schema members)
{
    std::string takes = "an object with " + namesIn(members);
    return {.takes = std::move(takes), .accepts = &Json::is_object, .members = std::move(members)};
}

Type oneMemberOf(Schema members)
{
    std::string takes = "an object with one of " + namesIn(members);
    return {.takes = std::move(takes),
        .accepts = [](const Json& value) { return value.is_object() && value.size() == 1; },
        .members = std::move(members)};
}

Type mapOf(Type names, Type values)
{
    return {.takes = "an object with values that are " + values.takes,
        .accepts = &Json::is_object,
        .names = std::make_shared<const Type>(std::move(names)),
        .values = std::make_shared<const Type>(std::move(values))};
}

Type listOf(Type elements)
{
    return {.takes = "a list of which each is " + elements.takes,
        .accepts = &Json::is_array,
        .values = std::make_shared<const Type>(std::move(elements))};
}

Type orNull(Type type)
{
    type.orNull = true;
    return type;
}

}
