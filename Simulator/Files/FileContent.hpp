// The content of a file, read block by block as it is asked for: the phone, too, fetches a file's pages when they are
// used. Not mapped: a mapped file that someone shortens would end the process.
#pragma once

#include "Simulator/Base/Descriptor.hpp"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace Simulator {

/// For one thread.
class FileContent {
public:
    /// So many bytes of an open file. What the file should have lost by the time of the reading is zero.
    FileContent(Descriptor file, std::size_t size);
    /// Bytes that have no file.
    explicit FileContent(std::string_view bytes);

    std::size_t size() const { return m_size; }
    /// All of it. The place in memory stays the same.
    std::string_view bytes() const;
    /// Fills the part with the bytes from an offset on; answers how many there were.
    std::size_t copy(std::size_t offset, std::span<std::byte> part) const;

private:
    struct Free {
        void operator()(char* bytes) const { std::free(bytes); }
    };
    void readBlocks(std::size_t first, std::size_t end) const;
    void readRange(std::size_t from, std::size_t to) const;

    mutable Descriptor m_file;
    std::size_t m_size;
    std::unique_ptr<char, Free> m_bytes;
    mutable std::vector<bool> m_isRead;
    mutable bool m_isComplete = false;
};

}
