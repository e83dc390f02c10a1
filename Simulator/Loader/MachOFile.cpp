// The walk over a library's load commands, with each offset and size checked before it is used.
#include "Simulator/Loader/MachOFile.hpp"

#include "Simulator/Loader/ByteReader.hpp"
#include "Simulator/Loader/MachOFixups.hpp"

#include <algorithm>
#include <map>

namespace Simulator {

namespace {

constexpr std::uint32_t magicOfSlice = 0xfeedfacf;
constexpr std::uint32_t magicOfSlices = 0xcafebabe; // big endian
constexpr std::uint64_t pageSize = 4096;
constexpr std::uint64_t largestSpan = std::uint64_t(256) << 20;
constexpr std::uint32_t kindLibrary = 6;

constexpr std::uint32_t processorX86 = 0x01000007;
constexpr std::uint32_t processorArm = 0x0100000c;
#if defined(__aarch64__)
constexpr std::uint32_t ownProcessor = processorArm;
constexpr std::uint32_t ownPlatform = 2; // the phone itself
#else
constexpr std::uint32_t ownProcessor = processorX86;
constexpr std::uint32_t ownPlatform = 7; // the simulator of its system
#endif

std::string processorName(std::uint32_t processor)
{
    switch (processor) {
    case processorX86:
        return "x86_64";
    case processorArm:
        return "arm64";
    default:
        return "processor " + std::to_string(processor);
    }
}

[[noreturn]] void refuseProcessors(const std::string& found)
{
    throw LoadError("it is for " + (found.empty() ? "no processor" : found) + ", and this machine takes "
        + processorName(ownProcessor) + " only");
}

/// The slice for this machine.
ByteReader sliceOf(std::string_view bytes)
{
    ByteReader file(bytes, "the file");
    if (file.bigEndian() != magicOfSlices)
        return file.part(0, bytes.size(), "the header");
    std::string others;
    for (auto count = file.bigEndian(); count > 0; --count) {
        const auto processor = file.bigEndian();
        file.skip(4);
        const auto offset = file.bigEndian();
        const auto size = file.bigEndian();
        file.skip(4);
        if (processor == ownProcessor)
            return file.part(offset, size, "the slice for " + processorName(processor));
        if (others.size() < 100)
            others += (others.empty() ? "" : ", ") + processorName(processor);
    }
    refuseProcessors(others);
}

/// Load commands without which the loader must not go on, by what they are.
enum class Command : std::uint32_t {
    symbolTable = 0x2,
    segment = 0x19,
    signature = 0x1d,
    platform = 0x32,
    weakLibrary = 0x80000018,
    searchFolder = 0x8000001c,
    fixups = 0x80000022,
    exportTrie = 0x80000033,
    chainedFixups = 0x80000034,
};
constexpr std::uint32_t mustBeKnown = 0x80000000;

enum class SectionType : std::uint32_t {
    initialisers = 0x09,
    firstThreadLocal = 0x11,
    lastThreadLocal = 0x15,
    initialiserOffsets = 0x16,
};

struct SymbolTable {
    std::uint32_t symbols = 0;
    std::uint32_t count = 0;
    std::uint32_t names = 0;
    std::uint32_t namesSize = 0;
};

}

/// Reads the load commands, and then what they point at.
class MachOReader {
public:
    explicit MachOReader(MachOFile& file)
        : m_file(file)
        , m_slice(sliceOf(file.m_bytes))
    {
    }

    void read()
    {
        auto header = m_slice;
        if (header.number<std::uint32_t>() != magicOfSlice)
            throw LoadError("it is not a dynamic library of the phone's kind (Mach-O with 64 bits)");
        if (const auto processor = header.number<std::uint32_t>(); processor != ownProcessor)
            refuseProcessors(processorName(processor));
        header.skip(4);
        if (header.number<std::uint32_t>() != kindLibrary)
            throw LoadError("it is a Mach-O file, but no dynamic library");
        const auto count = header.number<std::uint32_t>();
        const auto size = header.number<std::uint32_t>();
        readCommands(m_slice.part(32, size, "the list of load commands"), count);
        if (!m_isForPhone)
            throw LoadError("it is built for another system than the phone's");
        if (!m_isSigned)
            throw LoadError("it is not signed, and the phone's loader takes nothing unsigned");
        readFixups();
        arrangeSegments();
        readExports();
    }

private:
    void readCommands(ByteReader commands, std::uint32_t count)
    {
        for (std::uint64_t offset = 0; count > 0; --count) {
            commands.seek(offset);
            const auto kind = commands.number<std::uint32_t>();
            const auto size = commands.number<std::uint32_t>();
            auto command = commands.part(offset, size, "a load command");
            if (size < 8 || size % 8 != 0)
                throw LoadError("a load command has the impossible size " + std::to_string(size));
            command.skip(8);
            readCommand(Command(kind), command);
            offset += size;
        }
    }

    void readCommand(Command kind, ByteReader& command)
    {
        switch (kind) {
        case Command::segment:
            return readSegment(command);
        case Command::symbolTable:
            m_symbolTable.symbols = command.number<std::uint32_t>();
            m_symbolTable.count = command.number<std::uint32_t>();
            m_symbolTable.names = command.number<std::uint32_t>();
            m_symbolTable.namesSize = command.number<std::uint32_t>();
            return;
        case Command::signature: {
            const auto offset = command.number<std::uint32_t>();
            m_slice.part(offset, command.number<std::uint32_t>(), "the signature");
            m_isSigned = true;
            return;
        }
        case Command::platform:
            m_isForPhone = command.number<std::uint32_t>() == ownPlatform;
            return;
        case Command::fixups:
            for (const char* name : {"rebase", "bind", "weak bind", "lazy bind", "export"}) {
                const auto offset = command.number<std::uint32_t>();
                const auto size = command.number<std::uint32_t>();
                m_tables.insert_or_assign(name, m_slice.part(offset, size, std::string("the ") + name + " table"));
            }
            return;
        case Command::chainedFixups:
            throw LoadError("it binds by chained fixups, which phones before 13.4 do not know");
        case Command::weakLibrary:
        case Command::searchFolder:
        case Command::exportTrie:
            return;
        }
        if (std::uint32_t(kind) & mustBeKnown)
            throw LoadError("it needs a load command that is unknown here: " + std::to_string(std::uint32_t(kind)));
    }

    void readSegment(ByteReader& command)
    {
        command.skip(16);
        MachOFile::Segment segment;
        segment.address = command.number<std::uint64_t>();
        segment.size = command.number<std::uint64_t>();
        const auto offset = command.number<std::uint64_t>();
        const auto fileSize = command.number<std::uint64_t>();
        segment.content = m_slice.part(offset, fileSize, "a segment").bytes();
        command.skip(4);
        const auto protection = command.number<std::uint32_t>();
        const auto sections = command.number<std::uint32_t>();
        const auto flags = command.number<std::uint32_t>();
        segment.isWritable = protection & 2;
        segment.isExecutable = protection & 4;
        constexpr std::uint32_t readOnlyAfterBinding = 0x10;
        segment.staysWritable = segment.isWritable && !(flags & readOnlyAfterBinding);
        if (segment.address % pageSize != 0 || segment.address > largestSpan || segment.size > largestSpan)
            throw LoadError("a segment lies at an impossible address");
        if (fileSize > segment.size)
            throw LoadError("a segment is larger in the file than in memory");
        if (segment.isWritable && segment.isExecutable)
            throw LoadError("a segment is writable and executable at once");
        for (std::uint32_t i = 0; i < sections; ++i)
            readSection(command, segment);
        m_file.m_segments.push_back(segment);
    }

    void readSection(ByteReader& command, const MachOFile::Segment& segment)
    {
        command.skip(32);
        MachOFile::Range range;
        range.address = command.number<std::uint64_t>();
        range.size = command.number<std::uint64_t>();
        command.skip(16);
        const auto type = SectionType(command.number<std::uint32_t>() & 0xff);
        command.skip(12);
        if (range.address < segment.address || range.size > segment.size
            || range.address - segment.address > segment.size - range.size)
            throw LoadError("a section lies outside its segment");
        if (type >= SectionType::firstThreadLocal && type <= SectionType::lastThreadLocal)
            throw LoadError("it has variables of a thread, which the loader does not make");
        if (type == SectionType::initialiserOffsets)
            throw LoadError("its start functions are listed in a way that phones before 15.0 do not know");
        if (type == SectionType::initialisers)
            m_file.m_initialisers.push_back(range);
    }

    void readFixups()
    {
        const auto table = [&](const char* name) {
            const auto found = m_tables.find(name);
            return found == m_tables.end() ? ByteReader({}, name) : found->second;
        };
        m_file.m_rebases = readRebases(table("rebase"), m_file.m_segments);
        for (const auto& [name, isLazy] : {std::pair("bind", false), std::pair("lazy bind", true)}) {
            auto binds = readBinds(table(name), m_file.m_segments, isLazy);
            std::move(binds.begin(), binds.end(), std::back_inserter(m_file.m_binds));
        }
        if (!readBinds(table("weak bind"), m_file.m_segments, false).empty())
            throw LoadError("it shares a symbol with every library of the process");
    }

    /// By address, each in pages of its own.
    void arrangeSegments()
    {
        auto& segments = m_file.m_segments;
        std::sort(segments.begin(), segments.end(),
            [](const auto& left, const auto& right) { return left.address < right.address; });
        for (const auto& segment : segments) {
            if (segment.address < m_file.m_span)
                throw LoadError("two segments overlap");
            m_file.m_span = (segment.address + segment.size + pageSize - 1) / pageSize * pageSize;
        }
        if (m_file.m_span == 0 || m_file.m_span > largestSpan)
            throw LoadError("its segments take an impossible amount of memory");
    }

    void readExports()
    {
        constexpr std::uint64_t symbolSize = 16;
        auto symbols = m_slice.part(m_symbolTable.symbols, m_symbolTable.count * symbolSize, "the symbol table");
        auto names = m_slice.part(m_symbolTable.names, m_symbolTable.namesSize, "the table of symbol names");
        for (std::uint32_t i = 0; i < m_symbolTable.count; ++i) {
            const auto name = symbols.number<std::uint32_t>();
            const auto type = symbols.number<std::uint8_t>();
            symbols.skip(3);
            const auto address = symbols.number<std::uint64_t>();
            constexpr unsigned debugging = 0xe0, hidden = 0x10, outside = 0x01, kind = 0x0e, inSection = 0x0e;
            if ((type & (debugging | hidden)) || !(type & outside) || (type & kind) != inSection)
                continue;
            if (address >= m_file.m_span)
                throw LoadError("an export lies outside the library");
            names.seek(name);
            m_file.m_exports.push_back({std::string(names.text()), address});
        }
    }

    MachOFile& m_file;
    ByteReader m_slice;
    std::map<std::string_view, ByteReader> m_tables;
    SymbolTable m_symbolTable;
    bool m_isForPhone = false;
    bool m_isSigned = false;
};

MachOFile::MachOFile(std::string bytes)
    : m_bytes(std::move(bytes))
{
    MachOReader(*this).read();
}

bool MachOFile::isOne(std::string_view bytes)
{
    if (bytes.size() < 4)
        return false;
    ByteReader reader(bytes, "");
    const auto magic = reader.number<std::uint32_t>();
    return magic == magicOfSlice || magic == __builtin_bswap32(magicOfSlices);
}

}
