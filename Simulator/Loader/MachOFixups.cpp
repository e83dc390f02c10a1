// The operations of rebasing and binding, one after the other, as the system's linker documents them.
#include "Simulator/Loader/MachOFixups.hpp"

namespace Simulator {

namespace {

constexpr std::uint64_t pointerSize = 8;
constexpr unsigned pointerType = 1;
constexpr unsigned weakImportFlag = 1;

using Segments = std::vector<MachOFile::Segment>;

/// The place that the program is at. It may pass over anything, but what it takes must be a writable pointer.
class Place {
public:
    explicit Place(const Segments& segments)
        : m_segments(segments)
    {
        for (const auto& segment : segments)
            m_left += segment.isWritable ? segment.size / pointerSize : 0;
    }

    void set(unsigned segment, std::uint64_t offset)
    {
        if (segment >= m_segments.size())
            throw LoadError("the link data names segment " + std::to_string(segment) + ", which there is not");
        m_segment = &m_segments[segment];
        m_offset = offset;
    }
    void advance(std::uint64_t distance) { m_offset += distance; }

    /// The address of the pointer here; the place moves behind it.
    std::uint64_t take()
    {
        if (!m_segment || !m_segment->isWritable || m_segment->size < pointerSize
            || m_offset > m_segment->size - pointerSize)
            throw LoadError("the link data adjusts a place that is not in a writable segment");
        // No pointer is adjusted twice, so there is an end to them.
        if (m_left-- == 0)
            throw LoadError("the link data adjusts more pointers than there are");
        const std::uint64_t address = m_segment->address + m_offset;
        m_offset += pointerSize;
        return address;
    }

private:
    const Segments& m_segments;
    const MachOFile::Segment* m_segment = nullptr;
    std::uint64_t m_offset = 0;
    std::uint64_t m_left = 0;
};

[[noreturn]] void unknown(const char* table, unsigned code)
{
    throw LoadError(std::string("the ") + table + " table holds the unknown code " + std::to_string(code));
}

void checkType(unsigned type)
{
    if (type != pointerType)
        throw LoadError("the link data adjusts something that is no pointer");
}

}

std::vector<std::uint64_t> readRebases(ByteReader reader, const Segments& segments)
{
    std::vector<std::uint64_t> rebases;
    Place place(segments);
    const auto rebase = [&](std::uint64_t times, std::uint64_t skip) {
        for (; times > 0; --times) {
            rebases.push_back(place.take());
            place.advance(skip);
        }
    };
    while (!reader.isAtEnd()) {
        const auto code = reader.number<std::uint8_t>();
        const unsigned immediate = code & 0xf;
        switch (code >> 4) {
        case 0x0: // the end
            return rebases;
        case 0x1:
            checkType(immediate);
            break;
        case 0x2:
            place.set(immediate, reader.uleb());
            break;
        case 0x3:
            place.advance(reader.uleb());
            break;
        case 0x4:
            place.advance(immediate * pointerSize);
            break;
        case 0x5:
            rebase(immediate, 0);
            break;
        case 0x6:
            rebase(reader.uleb(), 0);
            break;
        case 0x7:
            rebase(1, reader.uleb());
            break;
        case 0x8: {
            const auto times = reader.uleb();
            rebase(times, reader.uleb());
            break;
        }
        default:
            unknown("rebase", code);
        }
    }
    return rebases;
}

std::vector<MachOFile::Bind> readBinds(ByteReader reader, const Segments& segments, bool isLazy)
{
    std::vector<MachOFile::Bind> binds;
    Place place(segments);
    MachOFile::Bind current;
    const auto bind = [&](std::uint64_t times, std::uint64_t skip) {
        for (; times > 0; --times) {
            current.address = place.take();
            if (current.symbol.empty())
                throw LoadError("the bind table binds a pointer to nothing");
            binds.push_back(current);
            place.advance(skip);
        }
    };
    while (!reader.isAtEnd()) {
        const auto code = reader.number<std::uint8_t>();
        const unsigned immediate = code & 0xf;
        switch (code >> 4) {
        case 0x0: // the end, of one bind or of all
            if (!isLazy)
                return binds;
            break;
        // Which library a symbol is of: here all are one.
        case 0x1:
        case 0x3:
            break;
        case 0x2:
            reader.uleb();
            break;
        case 0x4:
            current.symbol = reader.text();
            current.isOptional = immediate & weakImportFlag;
            break;
        case 0x5:
            checkType(immediate);
            break;
        case 0x6:
            current.addend = reader.sleb();
            break;
        case 0x7:
            place.set(immediate, reader.uleb());
            break;
        case 0x8:
            place.advance(reader.uleb());
            break;
        case 0x9:
            bind(1, 0);
            break;
        case 0xa:
            bind(1, reader.uleb());
            break;
        case 0xb:
            bind(1, immediate * pointerSize);
            break;
        case 0xc: {
            const auto times = reader.uleb();
            bind(times, reader.uleb());
            break;
        }
        default:
            unknown("bind", code);
        }
    }
    return binds;
}

}
