// Reads XML property lists. Anything that is no element of a property list makes the whole text none.
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/PropertyList.hpp"
#include "Simulator/Text/PropertyListCoding.hpp"

#include <charconv>
#include <limits>

namespace Simulator {

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<std::int64_t> readInteger(std::string_view text)
{
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal)
        text.remove_prefix(2);
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

std::optional<double> readReal(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range && end == text.data() + text.size())
        return text.starts_with('-') ? -std::numeric_limits<double>::infinity()
                                     : std::numeric_limits<double>::infinity();
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

struct Tag {
    std::string_view name;
    bool closing = false;
    bool empty = false;
};

class Reader {
public:
    explicit Reader(std::string_view text)
        : m_rest(text)
    {
    }

    /// What follows the list's end is not looked at, as on the phone.
    std::optional<PropertyList> readDocument()
    {
        auto tag = nextTag();
        if (tag && tag->name == "plist" && !tag->closing && !tag->empty)
            tag = nextTag();
        if (!tag || tag->closing)
            return std::nullopt;
        return readElement(*tag, 0);
    }

private:
    bool skipPast(std::string_view mark)
    {
        const std::size_t found = m_rest.find(mark);
        if (found == std::string_view::npos)
            return false;
        m_rest.remove_prefix(found + mark.size());
        return true;
    }

    /// A document type may hold declarations in brackets.
    bool skipDeclaration()
    {
        const std::size_t bracket = m_rest.find('[');
        const std::size_t end = m_rest.find('>');
        return bracket < end ? skipPast("]") && skipPast(">") : skipPast(">");
    }

    /// The next tag, with nothing but white space, comments and declarations before it.
    std::optional<Tag> nextTag()
    {
        for (;;) {
            while (!m_rest.empty() && isSpace(m_rest.front()))
                m_rest.remove_prefix(1);
            bool skipped = true;
            if (m_rest.starts_with("<!--"))
                skipped = skipPast("-->");
            else if (m_rest.starts_with("<?"))
                skipped = skipPast("?>");
            else if (m_rest.starts_with("<!"))
                skipped = skipDeclaration();
            else
                return m_rest.starts_with('<') ? readTag() : std::nullopt;
            if (!skipped)
                return std::nullopt;
        }
    }

    std::optional<Tag> readTag()
    {
        const std::size_t end = m_rest.find('>');
        if (end == std::string_view::npos)
            return std::nullopt;
        Tag tag;
        tag.name = m_rest.substr(1, end - 1);
        m_rest.remove_prefix(end + 1);
        tag.closing = tag.name.starts_with('/');
        tag.empty = tag.name.ends_with('/');
        if (tag.closing)
            tag.name.remove_prefix(1);
        if (tag.empty && !tag.name.empty())
            tag.name.remove_suffix(1);
        tag.name = tag.name.substr(0, tag.name.find_first_of(" \t\r\n"));
        return tag;
    }

    bool appendReference(std::string& text)
    {
        constexpr std::pair<std::string_view, char> entities[]
            = {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}};
        for (const auto& [entity, character] : entities) {
            if (m_rest.starts_with(entity)) {
                text += character;
                m_rest.remove_prefix(entity.size());
                return true;
            }
        }
        const bool hexadecimal = m_rest.starts_with("&#x");
        if (!m_rest.starts_with("&#"))
            return false;
        m_rest.remove_prefix(hexadecimal ? 3 : 2);
        std::uint32_t codePoint = 0;
        const auto [end, error]
            = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), codePoint, hexadecimal ? 16 : 10);
        if (error != std::errc() || end == m_rest.data() + m_rest.size() || *end != ';')
            return false;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()) + 1);
        appendUtf8(text, codePoint);
        return true;
    }

    /// The text up to the element's closing tag.
    std::optional<std::string> readText(const Tag& opening)
    {
        std::string text;
        if (opening.empty)
            return text;
        for (;;) {
            const std::size_t plain = m_rest.find_first_of("<&");
            if (plain == std::string_view::npos)
                return std::nullopt;
            text.append(m_rest.substr(0, plain));
            m_rest.remove_prefix(plain);
            if (m_rest.starts_with('&')) {
                if (!appendReference(text))
                    return std::nullopt;
            } else if (m_rest.starts_with("<![CDATA[")) {
                const std::string_view content = m_rest.substr(9);
                if (!skipPast("]]>"))
                    return std::nullopt;
                text.append(content.substr(0, content.find("]]>")));
            } else if (m_rest.starts_with("<!--")) {
                if (!skipPast("-->"))
                    return std::nullopt;
            } else {
                const auto tag = readTag();
                return tag && tag->closing && tag->name == opening.name ? std::optional(text) : std::nullopt;
            }
        }
    }

    std::optional<PropertyList> readArray(const Tag& opening, int depth)
    {
        PropertyListArray array;
        for (auto tag = opening.empty ? std::nullopt : nextTag(); !opening.empty; tag = nextTag()) {
            if (tag && tag->closing && tag->name == opening.name)
                break;
            auto element = tag && !tag->closing ? readElement(*tag, depth + 1) : std::nullopt;
            if (!element)
                return std::nullopt;
            array.push_back(std::move(*element));
        }
        return PropertyList{std::move(array)};
    }

    std::optional<PropertyList> readDictionary(const Tag& opening, int depth)
    {
        PropertyListDictionary dictionary;
        for (auto tag = opening.empty ? std::nullopt : nextTag(); !opening.empty; tag = nextTag()) {
            if (tag && tag->closing && tag->name == opening.name)
                break;
            if (!tag || tag->closing || tag->name != "key")
                return std::nullopt;
            auto key = readText(*tag);
            const auto valueTag = key ? nextTag() : std::nullopt;
            auto value = valueTag && !valueTag->closing ? readElement(*valueTag, depth + 1) : std::nullopt;
            if (!value)
                return std::nullopt;
            dictionary.insert_or_assign(std::move(*key), std::move(*value));
        }
        return PropertyList{std::move(dictionary)};
    }

    std::optional<PropertyList> readBoolean(const Tag& opening, bool value)
    {
        const auto content = readText(opening);
        return content && trimmed(*content).empty() ? std::optional(PropertyList{value}) : std::nullopt;
    }

    /// An element that holds text, decoded by its own rule.
    template <class Decode>
    std::optional<PropertyList> readScalar(const Tag& opening, Decode&& decode)
    {
        const auto content = readText(opening);
        if (!content)
            return std::nullopt;
        auto value = decode(*content);
        return value ? std::optional(PropertyList{std::move(*value)}) : std::nullopt;
    }

    std::optional<PropertyList> readElement(const Tag& tag, int depth)
    {
        if (depth > deepestPropertyList)
            return std::nullopt;
        if (tag.name == "dict")
            return readDictionary(tag, depth);
        if (tag.name == "array")
            return readArray(tag, depth);
        if (tag.name == "string")
            return readScalar(tag, [](const std::string& text) { return std::optional(text); });
        if (tag.name == "integer")
            return readScalar(tag, readInteger);
        if (tag.name == "real")
            return readScalar(tag, readReal);
        if (tag.name == "true" || tag.name == "false")
            return readBoolean(tag, tag.name == "true");
        if (tag.name == "date")
            return readScalar(tag, [](const std::string& text) -> std::optional<PropertyListDate> {
                const auto seconds = decodeDate(trimmed(text));
                return seconds ? std::optional(PropertyListDate{*seconds}) : std::nullopt;
            });
        if (tag.name == "data")
            return readScalar(tag, [](const std::string& text) -> std::optional<PropertyListData> {
                auto bytes = decodeBase64(text);
                return bytes ? std::optional(PropertyListData{std::move(*bytes)}) : std::nullopt;
            });
        return std::nullopt;
    }

    std::string_view m_rest;
};

}

std::optional<PropertyList> readXmlPropertyList(std::string_view bytes)
{
    return isUtf8(bytes) ? Reader(bytes).readDocument() : std::nullopt;
}

}
