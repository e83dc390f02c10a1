// Reads binary property lists. Offsets, lengths, cycles and repeated references are all checked, since a damaged
// file may hold any.
#include "Simulator/Base/Utf.hpp"
#include "Simulator/Text/PropertyList.hpp"
#include "Simulator/Text/PropertyListCoding.hpp"

#include <bit>

namespace Simulator {

namespace {

constexpr std::string_view magic = "bplist";
constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;
/// An object may be referred to from many places; a list that unfolds to more than this is refused.
constexpr int mostObjects = 1'000'000;

class Reader {
public:
    explicit Reader(std::string_view bytes)
        : m_bytes(bytes)
    {
    }

    std::optional<PropertyList> readDocument()
    {
        if (m_bytes.size() < headerSize + trailerSize || !m_bytes.starts_with(magic))
            return std::nullopt;
        const std::size_t trailer = m_bytes.size() - trailerSize;
        m_offsetSize = static_cast<unsigned char>(m_bytes[trailer + 6]);
        m_referenceSize = static_cast<unsigned char>(m_bytes[trailer + 7]);
        m_objectCount = *numberIn(m_bytes, trailer + 8, 8);
        const std::uint64_t topObject = *numberIn(m_bytes, trailer + 16, 8);
        m_offsetTable = *numberIn(m_bytes, trailer + 24, 8);
        const bool sound = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8
            && m_offsetTable <= trailer && m_objectCount <= (trailer - m_offsetTable) / m_offsetSize;
        if (!sound)
            return std::nullopt;
        m_objects = m_bytes.substr(0, m_offsetTable);
        return readObject(topObject, 0);
    }

private:
    static std::optional<std::string_view> part(std::string_view whole, std::uint64_t at, std::uint64_t size)
    {
        if (at > whole.size() || size > whole.size() - at)
            return std::nullopt;
        return whole.substr(at, size);
    }

    static std::optional<std::uint64_t> numberIn(std::string_view whole, std::uint64_t at, std::size_t size)
    {
        const auto bytes = part(whole, at, size);
        if (!bytes)
            return std::nullopt;
        std::uint64_t value = 0;
        for (const char byte : *bytes)
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

    std::optional<std::uint64_t> number(std::uint64_t at, std::size_t size) const
    {
        return numberIn(m_objects, at, size);
    }
    std::optional<std::string_view> slice(std::uint64_t at, std::uint64_t size) const
    {
        return part(m_objects, at, size);
    }

    /// The length in a marker's low half, or in the integer that follows it. Moves `at` to the content.
    std::optional<std::uint64_t> readLength(std::uint64_t& at, unsigned low) const
    {
        if (low != 0xF)
            return low;
        const auto marker = number(at, 1);
        if (!marker || *marker >> 4 != 1 || (*marker & 0xF) > 3)
            return std::nullopt;
        const std::size_t size = std::size_t{1} << (*marker & 0xF);
        const auto length = number(at + 1, size);
        at += 1 + size;
        return length;
    }

    std::optional<PropertyList> readReal(std::uint64_t at, unsigned low) const
    {
        if (low == 2) {
            const auto bits = number(at, 4);
            return bits ? std::optional(PropertyList{double{std::bit_cast<float>(static_cast<std::uint32_t>(*bits))}})
                        : std::nullopt;
        }
        const auto bits = low == 3 ? number(at, 8) : std::nullopt;
        return bits ? std::optional(PropertyList{std::bit_cast<double>(*bits)}) : std::nullopt;
    }

    std::optional<PropertyList> readInteger(std::uint64_t at, unsigned low) const
    {
        // Sixteen bytes carry an unsigned number of eight; its upper half is zero.
        const auto value = low == 4 ? number(at + 8, 8) : low < 4 ? number(at, std::size_t{1} << low) : std::nullopt;
        return value ? std::optional(PropertyList{static_cast<std::int64_t>(*value)}) : std::nullopt;
    }

    std::optional<PropertyList> readText(std::uint64_t at, std::uint64_t length, bool wide) const
    {
        if (wide && length > m_objects.size())
            return std::nullopt;
        const auto bytes = slice(at, wide ? length * 2 : length);
        if (!bytes || (!wide && !isUtf8(*bytes)))
            return std::nullopt;
        return PropertyList{wide ? utf8OfUtf16Bytes(*bytes, true) : std::string(*bytes)};
    }

    /// Objects that the references from `at` on name.
    std::optional<PropertyListArray> readObjects(std::uint64_t at, std::uint64_t count, int depth)
    {
        PropertyListArray objects;
        for (std::uint64_t index = 0; index < count; ++index) {
            const auto reference = number(at + index * m_referenceSize, m_referenceSize);
            auto object = reference ? readObject(*reference, depth + 1) : std::nullopt;
            if (!object)
                return std::nullopt;
            objects.push_back(std::move(*object));
        }
        return objects;
    }

    std::optional<PropertyList> readDictionary(std::uint64_t at, std::uint64_t count, int depth)
    {
        auto keys = readObjects(at, count, depth);
        auto values = keys ? readObjects(at + count * m_referenceSize, count, depth) : std::nullopt;
        if (!values)
            return std::nullopt;
        PropertyListDictionary dictionary;
        for (std::size_t index = 0; index < keys->size(); ++index) {
            auto* key = std::get_if<std::string>(&(*keys)[index].value);
            if (!key)
                return std::nullopt;
            dictionary.insert_or_assign(std::move(*key), std::move((*values)[index]));
        }
        return PropertyList{std::move(dictionary)};
    }

    std::optional<PropertyList> readObject(std::uint64_t index, int depth)
    {
        const auto offset = index < m_objectCount
            ? numberIn(m_bytes, m_offsetTable + index * m_offsetSize, m_offsetSize)
            : std::nullopt;
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker || depth > deepestPropertyList || ++m_objectsRead > mostObjects)
            return std::nullopt;
        const unsigned low = *marker & 0xF;
        std::uint64_t at = *offset + 1;
        switch (*marker >> 4) {
        case 0x0:
            return low == 8 || low == 9 ? std::optional(PropertyList{low == 9}) : std::nullopt;
        case 0x1:
            return readInteger(at, low);
        case 0x2:
            return readReal(at, low);
        case 0x3: {
            const auto bits = low == 3 ? number(at, 8) : std::nullopt;
            return bits ? std::optional(PropertyList{PropertyListDate{std::bit_cast<double>(*bits)}}) : std::nullopt;
        }
        }
        const auto length = readLength(at, low);
        // No object holds more pieces than the file has bytes.
        if (!length || *length > m_objects.size())
            return std::nullopt;
        switch (*marker >> 4) {
        case 0x4: {
            const auto bytes = slice(at, *length);
            return bytes ? std::optional(PropertyList{PropertyListData{std::string(*bytes)}}) : std::nullopt;
        }
        case 0x5:
            return readText(at, *length, false);
        case 0x6:
            return readText(at, *length, true);
        case 0xA: {
            auto objects = readObjects(at, *length, depth);
            return objects ? std::optional(PropertyList{std::move(*objects)}) : std::nullopt;
        }
        case 0xD:
            return readDictionary(at, *length, depth);
        }
        return std::nullopt;
    }

    std::string_view m_bytes;
    std::string_view m_objects; // what comes before the table of their offsets
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    std::uint64_t m_objectCount = 0;
    std::uint64_t m_offsetTable = 0;
    int m_objectsRead = 0;
};

}

std::optional<PropertyList> readBinaryPropertyList(std::string_view bytes)
{
    return Reader(bytes).readDocument();
}

}
