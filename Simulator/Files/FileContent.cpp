// Which blocks of a content were read, and the reading of the others.
#include "Simulator/Files/FileContent.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

namespace Simulator {

static constexpr std::size_t blockSize = 4 << 10;

static char* allocated(std::size_t size)
{
    auto* bytes = static_cast<char*>(std::malloc(std::max<std::size_t>(size, 1)));
    if (!bytes)
        throw std::bad_alloc();
    return bytes;
}

FileContent::FileContent(Descriptor file, std::size_t size)
    : m_file(std::move(file))
    , m_size(size)
    , m_bytes(allocated(size))
    , m_isRead((size + blockSize - 1) / blockSize)
{
}

FileContent::FileContent(std::string_view bytes)
    : m_file(-1)
    , m_size(bytes.size())
    , m_bytes(allocated(bytes.size()))
    , m_isComplete(true)
{
    bytes.copy(m_bytes.get(), bytes.size());
}

std::string_view FileContent::bytes() const
{
    if (!m_isComplete) {
        readBlocks(0, m_isRead.size());
        m_isComplete = true;
        m_file.close();
    }
    return {m_bytes.get(), m_size};
}

std::size_t FileContent::copy(std::size_t offset, std::span<std::byte> part) const
{
    if (offset >= m_size || part.empty())
        return 0;
    const std::size_t count = std::min(part.size(), m_size - offset);
    if (!m_isComplete)
        readBlocks(offset / blockSize, (offset + count - 1) / blockSize + 1);
    std::memcpy(part.data(), m_bytes.get() + offset, count);
    return count;
}

/// Blocks that follow one another come in one reading.
void FileContent::readBlocks(std::size_t first, std::size_t end) const
{
    while (first < end) {
        std::size_t last = first;
        while (last < end && !m_isRead[last])
            m_isRead[last++] = true;
        if (last > first)
            readRange(first * blockSize, std::min(last * blockSize, m_size));
        first = last + 1;
    }
}

void FileContent::readRange(std::size_t from, std::size_t to) const
{
    while (from < to) {
        const ssize_t count = ::pread(m_file.number(), m_bytes.get() + from, to - from, static_cast<off_t>(from));
        if (count == 0 || (count < 0 && errno != EINTR))
            break;
        from += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    std::memset(m_bytes.get() + from, 0, to - from);
}

}
