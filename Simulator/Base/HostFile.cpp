// Reads until nothing comes any more, so that a pipe is read like a file.
#include "Simulator/Base/HostFile.hpp"

#include "Simulator/Base/Descriptor.hpp"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace Simulator {

FileResult<std::string> readAll(int descriptor)
{
    constexpr std::size_t usualSize = 16 << 10;
    struct stat status { };
    const bool isSized = ::fstat(descriptor, &status) == 0 && status.st_size > 0;
    // One more than there is, so that the end shows without another block.
    std::string bytes(isSized ? static_cast<std::size_t>(status.st_size) + 1 : usualSize, '\0');
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(2 * filled);
        const ssize_t count = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return {{}, errno};
        filled += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    bytes.resize(filled);
    return {std::move(bytes), 0};
}

FileResult<std::string> readHostFile(const std::filesystem::path& path)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return file ? readAll(file.number()) : FileResult<std::string>{{}, errno};
}

}
