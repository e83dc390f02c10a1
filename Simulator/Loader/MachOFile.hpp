// A dynamic library of the phone's kind, read and checked. Nothing that the file says is taken on trust: what can be
// asked of the result lies inside the file and inside the library's own memory.
#pragma once

#include "Simulator/Loader/LoadError.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

class MachOFile {
public:
    struct Segment {
        std::uint64_t address = 0;
        std::uint64_t size = 0;
        std::string_view content; // the rest is zero
        bool isWritable = false;
        bool isExecutable = false;
        bool staysWritable = false;
    };
    struct Bind {
        std::uint64_t address = 0;
        std::string symbol;
        std::int64_t addend = 0;
        bool isOptional = false;
    };
    struct Range {
        std::uint64_t address = 0;
        std::uint64_t size = 0;
    };
    struct Export {
        std::string symbol;
        std::uint64_t address = 0;
    };

    /// Of a file with several slices, the one for this machine. Throws a LoadError.
    explicit MachOFile(std::string bytes);
    MachOFile(const MachOFile&) = delete;
    MachOFile& operator=(const MachOFile&) = delete;

    /// Whether the bytes begin as such a file does.
    static bool isOne(std::string_view bytes);

    /// In the order of their addresses; they do not overlap.
    const std::vector<Segment>& segments() const { return m_segments; }
    /// How much memory the segments span, from address 0.
    std::uint64_t span() const { return m_span; }
    /// Pointers into the library itself, and pointers to what it imports. All lie in writable segments.
    const std::vector<std::uint64_t>& rebases() const { return m_rebases; }
    const std::vector<Bind>& binds() const { return m_binds; }
    /// Tables of pointers to the functions that start the library.
    const std::vector<Range>& initialisers() const { return m_initialisers; }
    const std::vector<Export>& exports() const { return m_exports; }

private:
    friend class MachOReader;

    std::string m_bytes;
    std::vector<Segment> m_segments;
    std::uint64_t m_span = 0;
    std::vector<std::uint64_t> m_rebases;
    std::vector<Bind> m_binds;
    std::vector<Range> m_initialisers;
    std::vector<Export> m_exports;
};

}
