// Reading and writing under the phone's root, with faults where a test asks for them.
#include "Simulator/Files/PhoneFiles.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Simulator {

namespace fs = std::filesystem;

namespace {

class Descriptor {
public:
    explicit Descriptor(int number)
        : _number(number)
    {
    }
    ~Descriptor()
    {
        if (_number >= 0)
            ::close(_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const { return _number; }

private:
    int _number;
};

int writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return errno;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return 0;
}

// A full or broken disk is noticed while writing; everything else already at opening.
bool failsWhileWriting(int fault)
{
    return fault == ENOSPC || fault == EIO;
}

FileResult<std::string> readHostFile(const std::string& path)
{
    // Never blocks, should the path be a pipe.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status;
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return {{}, errno};
    if (!S_ISREG(status.st_mode))
        return {{}, S_ISDIR(status.st_mode) ? EISDIR : EINVAL};
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = ::read(file.number(), bytes.data() + filled, bytes.size() - filled);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return {{}, errno};
        filled += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    bytes.resize(filled);
    return {std::move(bytes), 0};
}

}

PhoneFiles& PhoneFiles::shared()
{
    static PhoneFiles* files = new PhoneFiles;
    return *files;
}

FileResult<std::string> PhoneFiles::safeHostPath(std::string_view phonePath) const
{
    if (_root.empty())
        return {{}, ENODEV};
    if (phonePath.empty() || phonePath.find('\0') != std::string_view::npos)
        return {{}, phonePath.empty() ? ENOENT : EINVAL};
    std::string path = hostPath(phonePath);
    std::error_code error;
    const fs::path resolved = fs::weakly_canonical(path, error);
    if (error)
        return {{}, error.value()};
    if (!(resolved.string() + '/').starts_with(_root + '/'))
        return {{}, EACCES};
    // A link to nothing would be followed when the file is made.
    if (fs::is_symlink(path, error) && !fs::exists(path, error))
        return {{}, ENOENT};
    return {std::move(path), 0};
}

FileResult<std::string> PhoneFiles::read(std::string_view phonePath) const
{
    if (const int error = fault(phonePath, FileOperation::Read))
        return {{}, error};
    return fetch(phonePath);
}

FileResult<std::string> PhoneFiles::fetch(std::string_view phonePath) const
{
    const auto host = safeHostPath(phonePath);
    return host ? readHostFile(host.value) : FileResult<std::string>{{}, host.error};
}

int PhoneFiles::writeDirectly(const std::string& hostPath, std::string_view bytes, int fault) const
{
    if (fault && !failsWhileWriting(fault))
        return fault;
    const Descriptor file(::open(hostPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC, 0644));
    if (file.number() < 0)
        return errno;
    return fault ? fault : writeAll(file.number(), bytes);
}

int PhoneFiles::writeAtomically(
    const std::string& hostPath, std::string_view bytes, int writeFault, int renameFault) const
{
    std::error_code status;
    if (writeFault)
        return writeFault;
    if (fs::is_directory(hostPath, status))
        return EISDIR;
    std::string temporary = fs::path(hostPath).parent_path().string() + "/.write-XXXXXX";
    int error = 0;
    {
        const Descriptor file(::mkstemp(temporary.data()));
        if (file.number() < 0)
            return errno;
        error = ::fchmod(file.number(), 0644) == 0 ? writeAll(file.number(), bytes) : errno;
    }
    if (!error)
        error = renameFault;
    if (!error && ::rename(temporary.c_str(), hostPath.c_str()) != 0)
        error = errno;
    if (error)
        ::unlink(temporary.c_str());
    return error;
}

int PhoneFiles::write(std::string_view phonePath, std::string_view bytes, WriteMode mode)
{
    const auto host = safeHostPath(phonePath);
    const int writeFault = fault(phonePath, FileOperation::Write);
    int error = host.error;
    if (!error && mode == WriteMode::Direct)
        error = writeDirectly(host.value, bytes, writeFault);
    else if (!error)
        error = writeAtomically(host.value, bytes, writeFault, fault(phonePath, FileOperation::Rename));
    if (_observer)
        _observer(std::string(phonePath), error);
    return error;
}

int PhoneFiles::put(std::string_view phonePath, std::string_view bytes)
{
    const auto host = safeHostPath(phonePath);
    if (!host)
        return host.error;
    std::error_code error;
    fs::create_directories(fs::path(host.value).parent_path(), error);
    return error ? error.value() : writeAtomically(host.value, bytes, 0, 0);
}

FileResult<std::vector<std::string>> PhoneFiles::list(std::string_view phonePath) const
{
    if (const int error = fault(phonePath, FileOperation::Read))
        return {{}, error};
    const auto host = safeHostPath(phonePath);
    if (!host)
        return {{}, host.error};
    FileResult<std::vector<std::string>> names;
    std::error_code error;
    for (fs::directory_iterator entry(host.value, error), end; !error && entry != end; entry.increment(error))
        names.value.push_back(entry->path().filename().string());
    if (error)
        return {{}, error.value()};
    std::ranges::sort(names.value);
    return names;
}

int PhoneFiles::remove(std::string_view phonePath)
{
    if (canonicalPath(phonePath) == "/")
        return EBUSY;
    if (const int error = fault(phonePath, FileOperation::Write))
        return error;
    // A link itself may go wherever it leads, so only the folder it lies in has to be inside.
    const auto folder = safeHostPath(canonicalPath(phonePath) + "/..");
    if (!folder)
        return folder.error;
    std::error_code error;
    const auto count = fs::remove_all(hostPath(phonePath), error);
    if (error)
        return error.value();
    return count == 0 ? ENOENT : 0;
}

int PhoneFiles::rename(std::string_view from, std::string_view to)
{
    for (const auto path : {from, to}) {
        if (const int error = fault(path, FileOperation::Rename))
            return error;
    }
    const auto source = safeHostPath(from);
    const auto target = safeHostPath(to);
    if (!source || !target)
        return source ? target.error : source.error;
    return ::rename(source.value.c_str(), target.value.c_str()) == 0 ? 0 : errno;
}

int PhoneFiles::createFolder(std::string_view phonePath, bool withParents)
{
    if (const int error = fault(phonePath, FileOperation::Write))
        return error;
    const auto host = safeHostPath(phonePath);
    if (!host)
        return host.error;
    std::error_code error;
    if (withParents)
        fs::create_directories(host.value, error);
    else if (!fs::create_directory(host.value, error) && !error)
        return EEXIST;
    return error.value();
}

bool PhoneFiles::exists(std::string_view phonePath) const
{
    std::error_code error;
    const auto host = safeHostPath(phonePath);
    return host && fs::exists(host.value, error);
}

bool PhoneFiles::isFolder(std::string_view phonePath) const
{
    std::error_code error;
    const auto host = safeHostPath(phonePath);
    return host && fs::is_directory(host.value, error);
}

void PhoneFiles::setFault(std::string_view phonePath, FileOperation operation, int error)
{
    auto key = std::pair(canonicalPath(phonePath), operation);
    if (error)
        _faults[std::move(key)] = error;
    else
        _faults.erase(key);
}

int PhoneFiles::fault(std::string_view phonePath, FileOperation operation) const
{
    if (_faults.empty())
        return 0;
    for (std::string path = canonicalPath(phonePath); !path.empty(); path.erase(path.rfind('/'))) {
        const auto found = _faults.find({path, operation});
        if (found != _faults.end())
            return found->second;
    }
    const auto top = _faults.find({"/", operation});
    return top == _faults.end() ? 0 : top->second;
}

}
