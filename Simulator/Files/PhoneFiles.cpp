// Writing and listing under the phone's root, with faults where a test asks for them.
#include "Simulator/Files/PhoneFiles.hpp"

#include "Simulator/Base/Descriptor.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Base/UnfinishedFile.hpp"

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

/// A full or broken disk is noticed while writing; everything else already at opening.
bool failsWhileWriting(int fault)
{
    return fault == ENOSPC || fault == EIO;
}

}

PhoneFiles& PhoneFiles::shared()
{
    return Phone::part<PhoneFiles>();
}

FileResult<std::string> PhoneFiles::plainHostPath(std::string_view phonePath) const
{
    if (m_root.empty())
        return {{}, ENODEV};
    if (phonePath.empty() || phonePath.find('\0') != std::string_view::npos)
        return {{}, phonePath.empty() ? ENOENT : EINVAL};
    return {hostPath(phonePath), 0};
}

Descriptor PhoneFiles::openInside(const std::string& hostPath, int flags) const
{
    if (!m_rootFolder)
        m_rootFolder = Descriptor(::open(m_root.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return openBelow(m_rootFolder, hostPath.size() > m_root.size() ? hostPath.c_str() + m_root.size() + 1 : ".", flags);
}

FileResult<std::string> PhoneFiles::safeHostPath(std::string_view phonePath) const
{
    auto path = plainHostPath(phonePath);
    if (!path || openInside(path.value, O_PATH))
        return path;
    std::error_code error;
    const fs::path resolved = fs::weakly_canonical(path.value, error);
    if (error)
        return {{}, error.value()};
    if (!(resolved.string() + '/').starts_with(m_root + '/'))
        return {{}, EACCES};
    // A link to nothing would be followed when the file is made.
    if (fs::is_symlink(path.value, error) && !fs::exists(path.value, error))
        return {{}, ENOENT};
    return path;
}

int PhoneFiles::writeDirectly(const std::string& hostPath, std::string_view bytes, int fault) const
{
    if (fault && !failsWhileWriting(fault))
        return fault;
    m_recent.readAll();
    const Descriptor file(::open(hostPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC, 0644));
    if (!file)
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
    UnfinishedFile file(hostPath);
    if (!file || ::fchmod(file.descriptor(), 0644) != 0)
        return errno;
    if (const int error = writeAll(file.descriptor(), bytes))
        return error;
    return renameFault ? renameFault : file.takePlace();
}

int PhoneFiles::write(std::string_view phonePath, std::string_view bytes, WriteMode mode)
{
    const auto host = safeHostPath(phonePath);
    const int writeFault = fault(phonePath, FileOperation::write);
    int error = host.error;
    if (!error)
        error = refusal(phonePath, mode == WriteMode::direct && exists(phonePath));
    if (!error && mode == WriteMode::direct)
        error = writeDirectly(host.value, bytes, writeFault);
    else if (!error)
        error = writeAtomically(host.value, bytes, writeFault, fault(phonePath, FileOperation::rename));
    if (m_observer)
        m_observer(std::string(phonePath), error);
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
    if (const int error = fault(phonePath, FileOperation::read))
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
    if (const int error = fault(phonePath, FileOperation::write))
        return error;
    const int error = refusal(phonePath, false);
    return error ? error : erase(phonePath);
}

int PhoneFiles::erase(std::string_view phonePath)
{
    if (canonicalPath(phonePath) == "/")
        return EBUSY;
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
        if (const int error = fault(path, FileOperation::rename))
            return error;
        if (const int error = refusal(path, false))
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
    if (const int error = fault(phonePath, FileOperation::write))
        return error;
    const auto host = safeHostPath(phonePath);
    if (!host)
        return host.error;
    if (const int error = refusal(phonePath, false); error && !isFolder(phonePath))
        return error;
    std::error_code error;
    if (withParents)
        fs::create_directories(host.value, error);
    else if (!fs::create_directory(host.value, error) && !error)
        return EEXIST;
    return error.value();
}

PhoneFiles::Presence PhoneFiles::presence(std::string_view phonePath) const
{
    const auto plain = plainHostPath(phonePath);
    struct stat status;
    if (plain) {
        if (const Descriptor file = openInside(plain.value, O_PATH))
            return ::fstat(file.number(), &status) == 0 && S_ISDIR(status.st_mode) ? Presence::folder : Presence::file;
    }
    const auto host = safeHostPath(phonePath);
    if (!host || ::stat(host.value.c_str(), &status) != 0)
        return Presence::none;
    return S_ISDIR(status.st_mode) ? Presence::folder : Presence::file;
}

int PhoneFiles::refusal(std::string_view phonePath, bool inPlace) const
{
    if (!m_isMobile)
        return 0;
    const std::string path = canonicalPath(phonePath);
    return (inPlace ? m_rights.mayWrite(path) : m_rights.mayReplace(path)) ? 0 : EACCES;
}

void PhoneFiles::setFault(std::string_view phonePath, FileOperation operation, int error)
{
    auto key = std::pair(canonicalPath(phonePath), operation);
    if (error)
        m_faults[std::move(key)] = error;
    else
        m_faults.erase(key);
}

int PhoneFiles::fault(std::string_view phonePath, FileOperation operation) const
{
    if (!m_isUnlockedOnce && operation == FileOperation::read && isUsersFile(canonicalPath(phonePath)))
        return EPERM;
    if (m_faults.empty())
        return 0;
    for (std::string path = canonicalPath(phonePath); !path.empty(); path.erase(path.rfind('/'))) {
        const auto found = m_faults.find({path, operation});
        if (found != m_faults.end())
            return found->second;
    }
    const auto top = m_faults.find({"/", operation});
    return top == m_faults.end() ? 0 : top->second;
}

}
