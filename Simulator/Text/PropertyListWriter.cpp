// Writes property lists as XML and as binary files.
#include "Simulator/Base/Base64.hpp"
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/PropertyList.hpp"
#include "Simulator/Text/PropertyListCoding.hpp"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>

namespace Simulator {

namespace {

constexpr std::string_view xmlHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                       "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                       "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                       "<plist version=\"1.0\">\n";

class XmlWriter {
public:
    std::string take() { return std::move(m_text); }

    void begin() { m_text = xmlHeader; }
    void end() { m_text += "</plist>\n"; }
    void write(const PropertyList& list)
    {
        std::visit([this](const auto& value) { write(value); }, list.value);
    }

private:
    void line(std::string_view element, std::string_view content)
    {
        m_text.append(m_indent, '\t').append("<").append(element).append(">");
        appendEscaped(content);
        m_text.append("</").append(element).append(">\n");
    }

    void emptyLine(std::string_view element)
    {
        m_text.append(m_indent, '\t').append("<").append(element).append("/>\n");
    }

    void appendEscaped(std::string_view content)
    {
        for (const char character : content) {
            if (character == '<')
                m_text += "&lt;";
            else if (character == '>')
                m_text += "&gt;";
            else if (character == '&')
                m_text += "&amp;";
            else
                m_text += character;
        }
    }

    void write(const std::string& text) { line("string", text); }
    void write(bool value) { emptyLine(value ? "true" : "false"); }
    void write(std::int64_t value) { line("integer", std::to_string(value)); }
    void write(double value)
    {
        char digits[32];
        if (std::isnan(value))
            return line("real", "nan");
        if (std::isinf(value))
            return line("real", value > 0 ? "+infinity" : "-infinity");
        const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
        line("real", {digits, static_cast<std::size_t>(end - digits)});
    }
    void write(const PropertyListDate& date) { line("date", encodeDate(date.secondsSince2001)); }

    void write(const PropertyListData& data)
    {
        constexpr std::size_t charactersPerLine = 68;
        const std::string encoded = toBase64(data.bytes);
        m_text.append(m_indent, '\t').append("<data>\n");
        for (std::size_t at = 0; at < encoded.size(); at += charactersPerLine)
            m_text.append(m_indent, '\t').append(encoded, at, charactersPerLine).append("\n");
        m_text.append(m_indent, '\t').append("</data>\n");
    }

    void write(const PropertyListArray& array)
    {
        nested("array", array.empty(), [&] {
            for (const auto& element : array)
                write(element);
        });
    }

    void write(const PropertyListDictionary& dictionary)
    {
        nested("dict", dictionary.empty(), [&] {
            for (const auto& [key, value] : dictionary) {
                line("key", key);
                write(value);
            }
        });
    }

    template <class Content>
    void nested(std::string_view element, bool empty, Content&& content)
    {
        if (empty)
            return emptyLine(element);
        m_text.append(m_indent, '\t').append("<").append(element).append(">\n");
        ++m_indent;
        content();
        --m_indent;
        m_text.append(m_indent, '\t').append("</").append(element).append(">\n");
    }

    std::string m_text;
    std::size_t m_indent = 0;
};

class BinaryWriter {
public:
    std::string write(const PropertyList& list)
    {
        m_referenceSize = bytesFor(countObjects(list));
        m_bytes = "bplist00";
        const std::uint64_t top = add(list);
        const std::uint64_t offsetTable = m_bytes.size();
        const std::size_t offsetSize = bytesFor(offsetTable);
        for (const std::uint64_t offset : m_offsets)
            appendNumber(offset, offsetSize);
        m_bytes.append(6, '\0');
        appendNumber(offsetSize, 1);
        appendNumber(m_referenceSize, 1);
        for (const std::uint64_t number : {std::uint64_t{m_offsets.size()}, top, offsetTable})
            appendNumber(number, 8);
        return std::move(m_bytes);
    }

private:
    static std::size_t bytesFor(std::uint64_t number)
    {
        return number < 1ULL << 8 ? 1 : number < 1ULL << 16 ? 2 : number < 1ULL << 32 ? 4 : 8;
    }

    static std::size_t countObjects(const PropertyList& list)
    {
        std::size_t count = 1;
        if (const auto* array = std::get_if<PropertyListArray>(&list.value)) {
            for (const auto& element : *array)
                count += countObjects(element);
        } else if (const auto* dictionary = std::get_if<PropertyListDictionary>(&list.value)) {
            for (const auto& [key, value] : *dictionary)
                count += 1 + countObjects(value);
        }
        return count;
    }

    void appendNumber(std::uint64_t number, std::size_t size)
    {
        for (std::size_t byte = size; byte-- > 0;)
            m_bytes += static_cast<char>(number >> (8 * byte) & 0xFF);
    }

    void appendInteger(std::uint64_t number)
    {
        const std::size_t size = bytesFor(number);
        appendNumber(0x10 | static_cast<unsigned>(std::countr_zero(size)), 1);
        appendNumber(number, size);
    }

    void appendMarker(unsigned kind, std::size_t length)
    {
        appendNumber(kind << 4 | std::min<std::size_t>(length, 0xF), 1);
        if (length >= 0xF)
            appendInteger(length);
    }

    std::uint64_t add(const PropertyList& list)
    {
        return std::visit([this](const auto& value) { return addValue(value); }, list.value);
    }

    /// Objects that others refer to come first, so that an object's bytes stay together.
    std::uint64_t startObject()
    {
        m_offsets.push_back(m_bytes.size());
        return m_offsets.size() - 1;
    }

    std::uint64_t addValue(const std::string& text)
    {
        const std::uint64_t index = startObject();
        if (std::ranges::all_of(text, [](unsigned char byte) { return byte < 0x80; })) {
            appendMarker(0x5, text.size());
            m_bytes += text;
            return index;
        }
        const std::u16string wide = toUtf16(text);
        appendMarker(0x6, wide.size());
        for (const char16_t unit : wide)
            appendNumber(unit, 2);
        return index;
    }

    std::uint64_t addValue(bool value)
    {
        const std::uint64_t index = startObject();
        appendNumber(value ? 0x09 : 0x08, 1);
        return index;
    }

    std::uint64_t addValue(std::int64_t value)
    {
        const std::uint64_t index = startObject();
        appendInteger(static_cast<std::uint64_t>(value));
        return index;
    }

    std::uint64_t addValue(double value)
    {
        const std::uint64_t index = startObject();
        appendNumber(0x23, 1);
        appendNumber(std::bit_cast<std::uint64_t>(value), 8);
        return index;
    }

    std::uint64_t addValue(const PropertyListDate& date)
    {
        const std::uint64_t index = startObject();
        appendNumber(0x33, 1);
        appendNumber(std::bit_cast<std::uint64_t>(date.secondsSince2001), 8);
        return index;
    }

    std::uint64_t addValue(const PropertyListData& data)
    {
        const std::uint64_t index = startObject();
        appendMarker(0x4, data.bytes.size());
        m_bytes += data.bytes;
        return index;
    }

    std::uint64_t addValue(const PropertyListArray& array)
    {
        std::vector<std::uint64_t> references;
        for (const auto& element : array)
            references.push_back(add(element));
        return addContainer(0xA, array.size(), references);
    }

    std::uint64_t addValue(const PropertyListDictionary& dictionary)
    {
        std::vector<std::uint64_t> references;
        for (const auto& [key, value] : dictionary)
            references.push_back(addValue(key));
        for (const auto& [key, value] : dictionary)
            references.push_back(add(value));
        return addContainer(0xD, dictionary.size(), references);
    }

    std::uint64_t addContainer(unsigned kind, std::size_t count, const std::vector<std::uint64_t>& references)
    {
        const std::uint64_t index = startObject();
        appendMarker(kind, count);
        for (const std::uint64_t reference : references)
            appendNumber(reference, m_referenceSize);
        return index;
    }

    std::string m_bytes;
    std::vector<std::uint64_t> m_offsets;
    std::size_t m_referenceSize = 1;
};

}

std::string writeXmlPropertyList(const PropertyList& list)
{
    XmlWriter writer;
    writer.begin();
    writer.write(list);
    writer.end();
    return writer.take();
}

std::string writeBinaryPropertyList(const PropertyList& list)
{
    return BinaryWriter().write(list);
}

}
