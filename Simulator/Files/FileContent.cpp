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
    : _file(std::move(file))
    , _size(size)
    , _bytes(allocated(size))
    , _isRead((size + blockSize - 1) / blockSize)
{
}

FileContent::FileContent(std::string_view bytes)
    : _file(-1)
    , _size(bytes.size())
    , _bytes(allocated(bytes.size()))
    , _isComplete(true)
{
    bytes.copy(_bytes.get(), bytes.size());
}

std::string_view FileContent::bytes() const
{
    if (!_isComplete) {
        readBlocks(0, _isRead.size());
        _isComplete = true;
        _file.close();
    }
    return {_bytes.get(), _size};
}

std::size_t FileContent::copy(std::size_t offset, std::span<std::byte> part) const
{
    if (offset >= _size || part.empty())
        return 0;
    const std::size_t count = std::min(part.size(), _size - offset);
    if (!_isComplete)
        readBlocks(offset / blockSize, (offset + count - 1) / blockSize + 1);
    std::memcpy(part.data(), _bytes.get() + offset, count);
    return count;
}

// Blocks that follow one another come in one reading.
void FileContent::readBlocks(std::size_t first, std::size_t end) const
{
    while (first < end) {
        std::size_t last = first;
        while (last < end && !_isRead[last])
            _isRead[last++] = true;
        if (last > first)
            readRange(first * blockSize, std::min(last * blockSize, _size));
        first = last + 1;
    }
}

void FileContent::readRange(std::size_t from, std::size_t to) const
{
    while (from < to) {
        const ssize_t count = ::pread(_file.number(), _bytes.get() + from, to - from, static_cast<off_t>(from));
        if (count == 0 || (count < 0 && errno != EINTR))
            break;
        from += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    std::memset(_bytes.get() + from, 0, to - from);
}

}
