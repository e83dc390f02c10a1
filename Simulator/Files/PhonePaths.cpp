// Which paths are the phone's, and where they lie on the host.
#include "Simulator/Files/PhoneFiles.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace Simulator {

namespace {

/// The phone's top-level folders. What Linux and its libraries read for themselves (/usr, /etc, /tmp, /root …) is not
/// here.
constexpr std::array phoneFolders
    = {"/Applications", "/Developer", "/Library", "/System", "/User", "/bootstrap", "/private", "/var"};

/// Folders of the jailbreak below folders that are otherwise the host's.
constexpr std::array phoneSubfolders = {"/usr/lib/TweakInject", "/usr/lib/substrate", "/usr/lib/tweaks"};

/// Links of the phone's system; the longest come first.
struct SystemLink {
    std::string_view from;
    std::string_view to;
};
constexpr std::array systemLinks = {
    SystemLink{"/private/var", "/var"},
    SystemLink{"/private/etc", "/etc"},
    SystemLink{"/private/tmp", "/tmp"},
    SystemLink{"/User", "/var/mobile"},
};

bool isAtOrBelow(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// "/a//b/./../c" becomes "/a/c"; ".." at the top stays at the top. A relative path counts from the top.
std::string plainPath(std::string_view path)
{
    std::string plain;
    plain.reserve(path.size() + 1);
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view part = path.substr(begin, end - begin);
        begin = end + 1;
        if (part == "..")
            plain.erase(std::min(plain.rfind('/'), plain.size()));
        else if (!part.empty() && part != ".")
            plain.append("/").append(part);
    }
    return plain.empty() ? "/" : plain;
}

}

std::string PhoneFiles::canonicalPath(std::string_view phonePath)
{
    std::string path = plainPath(phonePath);
    for (const auto& link : systemLinks) {
        if (isAtOrBelow(path, link.from))
            path.replace(0, link.from.size(), link.to);
    }
    return path;
}

bool PhoneFiles::isPhonePath(std::string_view path) const
{
    if (!path.starts_with('/') || (!m_root.empty() && isAtOrBelow(path, m_root)))
        return false;
    const std::string plain = plainPath(path);
    const auto holds = [&](const char* folder) { return isAtOrBelow(path, folder) || isAtOrBelow(plain, folder); };
    return std::ranges::any_of(phoneFolders, holds) || std::ranges::any_of(phoneSubfolders, holds);
}

std::string PhoneFiles::hostPath(std::string_view phonePath) const
{
    const std::string path = canonicalPath(phonePath);
    return path == "/" ? m_root : m_root + path;
}

std::string PhoneFiles::phonePath(std::string_view hostPath) const
{
    if (m_root.empty() || !isAtOrBelow(hostPath, m_root))
        return std::string(hostPath);
    return plainPath(hostPath.substr(m_root.size()));
}

void PhoneFiles::setRoot(const std::string& hostPath)
{
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::weakly_canonical(hostPath, error);
    m_root = plainPath(error ? hostPath : resolved.string());
    m_rootFolder.close();
}

}
