// Whose the phone's files are, and what the shell may do with them. The shell runs as the user "mobile".
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace Simulator {

enum class FileOwner { root, mobile };

/// By the name or the number that the phone knows the user by; everybody but "mobile" (501) counts as root.
inline FileOwner ownerNamed(std::string_view name)
{
    return name == "mobile" || name == "501" ? FileOwner::mobile : FileOwner::root;
}

/// What lies in the user's home is the user's, everything else is root's, unless it was given away. Everybody may read
/// what is there, and only the owner may change it.
class FileRights {
public:
    /// Of a canonical path.
    FileOwner owner(const std::string& path) const;
    void give(const std::string& path, FileOwner owner) { m_given[path] = owner; }
    /// What was given away, by canonical path.
    const std::map<std::string, FileOwner>& given() const { return m_given; }

    /// Whether the shell may write into the file as it stands.
    bool mayWrite(const std::string& path) const { return owner(path) == FileOwner::mobile; }
    /// Whether it may make, replace, rename or remove what lies at the path: that is up to the folder.
    bool mayReplace(const std::string& path) const;

private:
    std::map<std::string, FileOwner> m_given;
};

/// Whether it is one of the files that are under the user's key until the first unlock.
bool isUsersFile(std::string_view canonicalPath);

}
