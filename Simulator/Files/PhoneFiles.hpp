// The phone's file system: absolute phone paths mapped under one folder of the host,
// with injected faults and a record of what the shell writes.
#pragma once

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Files/FileRights.hpp"
#include "Simulator/Files/RecentContents.hpp"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Simulator {

enum class FileOperation { read, write, rename };
enum class WriteMode { direct, atomic };

class PhoneFiles {
public:
    /// Called for every write the shell asks for: the phone path and 0 or the errno.
    using WriteObserver = std::function<void(const std::string& path, int error)>;

    static PhoneFiles& shared();

    /// The host folder that is the phone's "/". Its links are resolved once, here.
    void setRoot(const std::string& hostPath);
    const std::string& root() const { return m_root; }

    /// True for a path in one of the phone's top-level folders; false for what is the host's own (/usr, /etc, /tmp …).
    bool isPhonePath(std::string_view path) const;
    /// The path without links of the system, doubled slashes, "." and "..": "/User/x" is "/var/mobile/x".
    static std::string canonicalPath(std::string_view phonePath);
    /// Where the phone's path lies on the host; never outside the root by its text.
    std::string hostPath(std::string_view phonePath) const;
    /// The phone's path of a host path under the root; any other path comes back unchanged.
    std::string phonePath(std::string_view hostPath) const;

    /// As the shell process does it: faults apply, writes are recorded. Errors are errno values, 0 is success.
    FileResult<std::string> read(std::string_view phonePath) const;
    /// Likewise, without a copy for each reader, and read from the disk when the bytes are asked for.
    using Content = RecentContents::Content;
    FileResult<Content> load(std::string_view phonePath) const;
    int write(std::string_view phonePath, std::string_view bytes, WriteMode mode);
    /// Names in bytewise order, without "." and "..".
    FileResult<std::vector<std::string>> list(std::string_view phonePath) const;
    /// A folder goes with all that is in it.
    int remove(std::string_view phonePath);
    int rename(std::string_view from, std::string_view to);
    int createFolder(std::string_view phonePath, bool withParents);
    /// What there is at the path, links followed.
    enum class Presence { none, file, folder };
    Presence presence(std::string_view phonePath) const;
    bool exists(std::string_view phonePath) const { return presence(phonePath) != Presence::none; }
    bool isFolder(std::string_view phonePath) const { return presence(phonePath) == Presence::folder; }

    /// As a tester's hand does it: no faults, no record, parent folders are made.
    FileResult<std::string> fetch(std::string_view phonePath) const;
    int put(std::string_view phonePath, std::string_view bytes);
    int erase(std::string_view phonePath);

    /// From now on it is the shell that acts, which may not do everything; before that, whoever sets the phone up.
    void runAsMobile() { m_isMobile = true; }
    /// Gives the file or folder to a user.
    void give(std::string_view phonePath, FileOwner owner) { m_rights.give(canonicalPath(phonePath), owner); }
    const FileRights& rights() const { return m_rights; }
    /// Before the first unlock nobody can read the user's files.
    void setUnlockedOnce(bool unlocked) { m_isUnlockedOnce = unlocked; }
    bool isUnlockedOnce() const { return m_isUnlockedOnce; }

    /// The operation fails with `error` at the path and below it; 0 takes the fault away.
    void setFault(std::string_view phonePath, FileOperation, int error);
    void clearFaults() { m_faults.clear(); }
    /// Of the file system, or of the rights of the shell; 0 for none.
    int fault(std::string_view phonePath, FileOperation) const;
    void setWriteObserver(WriteObserver observer) { m_observer = std::move(observer); }
    /// Called for every file that the shell opens to read it.
    void setOpenObserver(std::function<void()> observer) { m_openObserver = std::move(observer); }

private:
    /// The host path by the text alone.
    FileResult<std::string> plainHostPath(std::string_view phonePath) const;
    /// Opens what exists at the host path; may fail where only safeHostPath can tell.
    Descriptor openInside(const std::string& hostPath, int flags) const;
    FileResult<Descriptor> openToRead(std::string_view phonePath) const;
    /// The host path if no link on the way leads out of the root.
    FileResult<std::string> safeHostPath(std::string_view phonePath) const;
    int writeDirectly(const std::string& hostPath, std::string_view bytes, int fault) const;
    int writeAtomically(const std::string& hostPath, std::string_view bytes, int writeFault, int renameFault) const;

    std::string m_root;
    /// Opened when first needed. Should the folder go, nothing is found here, and safeHostPath asks by name.
    mutable Descriptor m_rootFolder{-1};
    /// Why the shell may not do it; 0 if it may.
    int refusal(std::string_view phonePath, bool inPlace) const;

    std::map<std::pair<std::string, FileOperation>, int> m_faults;
    FileRights m_rights;
    bool m_isMobile = false;
    bool m_isUnlockedOnce = true;
    WriteObserver m_observer;
    std::function<void()> m_openObserver = [] {};
    mutable RecentContents m_recent;
};

}
