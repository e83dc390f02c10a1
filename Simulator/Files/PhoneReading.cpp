// The phone's files as bytes: all of them at once, or as a content that is shared and read when it is asked for.
#include "Simulator/Files/PhoneFiles.hpp"

#include "Simulator/Base/Descriptor.hpp"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Simulator {

namespace {

struct OpenFile {
    Descriptor descriptor{-1};
    struct stat status { };
    std::size_t size() const { return static_cast<std::size_t>(status.st_size); }
};

/// A plain file; nothing else can be read.
FileResult<OpenFile> plainFile(Descriptor descriptor)
{
    OpenFile file;
    if (!descriptor || ::fstat(descriptor.number(), &file.status) != 0)
        return {{}, errno};
    if (!S_ISREG(file.status.st_mode))
        return {{}, S_ISDIR(file.status.st_mode) ? EISDIR : EINVAL};
    file.descriptor = std::move(descriptor);
    return {std::move(file), 0};
}

}

FileResult<Descriptor> PhoneFiles::openToRead(std::string_view phonePath) const
{
    // Never blocks, should the path be a pipe.
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC;
    const auto path = plainHostPath(phonePath);
    if (!path)
        return {Descriptor(-1), path.error};
    if (auto file = openInside(path.value, flags))
        return {std::move(file), 0};
    const auto host = safeHostPath(phonePath);
    if (!host)
        return {Descriptor(-1), host.error};
    Descriptor file(::open(host.value.c_str(), flags));
    const int error = file ? 0 : errno;
    return {std::move(file), error};
}

FileResult<std::string> PhoneFiles::read(std::string_view phonePath) const
{
    if (const int error = fault(phonePath, FileOperation::read))
        return {{}, error};
    auto file = fetch(phonePath);
    if (file)
        m_openObserver();
    return file;
}

FileResult<std::string> PhoneFiles::fetch(std::string_view phonePath) const
{
    auto opened = openToRead(phonePath);
    const auto file = opened ? plainFile(std::move(opened.value)) : FileResult<OpenFile>{{}, opened.error};
    return file ? readAll(file.value.descriptor.number()) : FileResult<std::string>{{}, file.error};
}

FileResult<PhoneFiles::Content> PhoneFiles::load(std::string_view phonePath) const
{
    if (const int error = fault(phonePath, FileOperation::read))
        return {{}, error};
    auto opened = openToRead(phonePath);
    auto file = opened ? plainFile(std::move(opened.value)) : FileResult<OpenFile>{{}, opened.error};
    if (!file)
        return {{}, file.error};
    m_openObserver();
    const struct stat& status = file.value.status;
    if (!RecentContents::suits(status)) {
        const auto bytes = readAll(file.value.descriptor.number());
        return {bytes ? std::make_shared<const FileContent>(bytes.value) : nullptr, bytes.error};
    }
    auto content = m_recent.find(status);
    if (!content) {
        content = std::make_shared<const FileContent>(std::move(file.value.descriptor), file.value.size());
        m_recent.add(status, content);
    }
    return {std::move(content), 0};
}

}
