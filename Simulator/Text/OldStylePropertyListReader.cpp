// Reads property lists of the old text style, { key = value; }, and files of "key" = "value"; lines.
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/PropertyList.hpp"
#include "Simulator/Text/PropertyListCoding.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace Simulator {

namespace {

bool isPlainCharacter(char character)
{
    return std::isalnum(static_cast<unsigned char>(character))
        || std::string_view("_$/:.-").find(character) != std::string_view::npos;
}

class Reader {
public:
    explicit Reader(std::string_view text)
        : m_rest(text)
    {
    }

    std::optional<PropertyList> readDocument()
    {
        const std::string_view all = m_rest;
        auto value = readValue(0);
        if (value && atEnd())
            return value;
        m_rest = all;
        auto entries = readEntries(0);
        return entries && !entries->empty() && atEnd() ? std::optional(PropertyList{std::move(*entries)})
                                                       : std::nullopt;
    }

private:
    void skipSpace()
    {
        for (;;) {
            if (!m_rest.empty() && std::isspace(static_cast<unsigned char>(m_rest.front())))
                m_rest.remove_prefix(1);
            else if (m_rest.starts_with("//"))
                m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
            else if (m_rest.starts_with("/*"))
                m_rest.remove_prefix(std::min(m_rest.find("*/", 2), m_rest.size() - 2) + 2);
            else
                return;
        }
    }

    bool atEnd()
    {
        skipSpace();
        return m_rest.empty();
    }

    bool take(char character)
    {
        skipSpace();
        if (!m_rest.starts_with(character))
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    /// The number of up to `digits` digits at the front, if there is one.
    std::optional<std::uint32_t> takeDigits(std::size_t digits, int base)
    {
        std::uint32_t value = 0;
        const std::string_view front = m_rest.substr(0, digits);
        const auto [end, error] = std::from_chars(front.data(), front.data() + front.size(), value, base);
        if (error != std::errc())
            return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - front.data()));
        return value;
    }

    bool appendEscape(std::string& text)
    {
        constexpr std::string_view letters = "abfnrtv";
        constexpr std::string_view meanings = "\a\b\f\n\r\t\v";
        if (m_rest.empty())
            return false;
        const char letter = m_rest.front();
        if (letter >= '0' && letter <= '7') {
            appendUtf8(text, *takeDigits(3, 8));
            return true;
        }
        m_rest.remove_prefix(1);
        if (letter == 'U' || letter == 'u') {
            const auto codePoint = takeDigits(4, 16);
            if (codePoint)
                appendUtf8(text, *codePoint);
            return codePoint.has_value();
        }
        const std::size_t known = letters.find(letter);
        text += known == std::string_view::npos ? letter : meanings[known];
        return true;
    }

    std::optional<std::string> readQuoted(char quote)
    {
        std::string text;
        while (!m_rest.empty()) {
            const char character = m_rest.front();
            m_rest.remove_prefix(1);
            if (character == quote)
                return text;
            if (character != '\\')
                text += character;
            else if (!appendEscape(text))
                return std::nullopt;
        }
        return std::nullopt;
    }

    std::optional<std::string> readText()
    {
        skipSpace();
        for (const char quote : {'"', '\''}) {
            if (take(quote))
                return readQuoted(quote);
        }
        std::size_t length = 0;
        while (length < m_rest.size() && isPlainCharacter(m_rest[length]))
            ++length;
        const std::string text(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return text.empty() ? std::nullopt : std::optional(text);
    }

    std::optional<PropertyList> readData()
    {
        PropertyListData data;
        while (!take('>')) {
            const std::size_t before = m_rest.size();
            const auto byte = takeDigits(2, 16);
            if (!byte || before - m_rest.size() != 2)
                return std::nullopt;
            data.bytes += static_cast<char>(*byte);
        }
        return PropertyList{std::move(data)};
    }

    std::optional<PropertyList> readArray(int depth)
    {
        PropertyListArray array;
        while (!take(')')) {
            auto element = readValue(depth + 1);
            if (!element)
                return std::nullopt;
            array.push_back(std::move(*element));
            if (!take(',') && !m_rest.starts_with(')'))
                return std::nullopt;
        }
        return PropertyList{std::move(array)};
    }

    /// Entries up to a closing brace or the end, neither of which is taken.
    std::optional<PropertyListDictionary> readEntries(int depth)
    {
        PropertyListDictionary dictionary;
        while (!atEnd() && !m_rest.starts_with('}')) {
            auto key = readText();
            if (!key)
                return std::nullopt;
            // A key alone stands for itself.
            auto value = take('=') ? readValue(depth + 1) : std::optional(PropertyList{*key});
            if (!value || (!take(';') && !m_rest.starts_with('}')))
                return std::nullopt;
            dictionary.insert_or_assign(std::move(*key), std::move(*value));
        }
        return dictionary;
    }

    std::optional<PropertyList> readValue(int depth)
    {
        if (depth > deepestPropertyList)
            return std::nullopt;
        if (take('{')) {
            auto entries = readEntries(depth);
            return entries && take('}') ? std::optional(PropertyList{std::move(*entries)}) : std::nullopt;
        }
        if (take('('))
            return readArray(depth);
        if (take('<'))
            return readData();
        auto text = readText();
        return text ? std::optional(PropertyList{std::move(*text)}) : std::nullopt;
    }

    std::string_view m_rest;
};

}

std::optional<PropertyList> readOldStylePropertyList(std::string_view text)
{
    return isUtf8(text) ? Reader(text).readDocument() : std::nullopt;
}

std::optional<PropertyList> readPropertyList(std::string_view bytes)
{
    std::string converted;
    if (bytes.starts_with("bplist"))
        return readBinaryPropertyList(bytes);
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE"))
        bytes = converted = utf8OfUtf16Bytes(bytes, false);
    const std::size_t begin = bytes.find_first_not_of(" \t\r\n");
    const bool looksLikeXml = begin != std::string_view::npos && bytes[begin] == '<' && begin + 1 < bytes.size()
        && (std::isalpha(static_cast<unsigned char>(bytes[begin + 1])) || bytes[begin + 1] == '?'
            || bytes[begin + 1] == '!');
    if (looksLikeXml) {
        if (auto list = readXmlPropertyList(bytes))
            return list;
    }
    return readOldStylePropertyList(bytes);
}

}
