// Owners by folder.
#include "Simulator/Files/FileRights.hpp"

#include <array>

namespace Simulator {

/// Canonical paths: "/private/var" is "/var".
constexpr std::string_view usersHome = "/var/mobile";
constexpr std::array<std::string_view, 3> everybodys = {"/tmp", "/var/tmp", "/private/tmp"};

static bool isAtOrBelow(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool isUsersFile(std::string_view path)
{
    return isAtOrBelow(path, usersHome);
}

FileOwner FileRights::owner(const std::string& path) const
{
    if (const auto given = m_given.find(path); given != m_given.end())
        return given->second;
    for (const std::string_view folder : everybodys) {
        if (isAtOrBelow(path, folder))
            return FileOwner::mobile;
    }
    return isUsersFile(path) ? FileOwner::mobile : FileOwner::root;
}

bool FileRights::mayReplace(const std::string& path) const
{
    return owner(path.substr(0, path.rfind('/'))) == FileOwner::mobile;
}

}
