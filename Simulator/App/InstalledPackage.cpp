// Nobody here is root: who is to own a file is read from the package's listing, and from a `chown` that takes notes.
#include "Simulator/App/InstalledPackage.hpp"

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include <glib.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace Simulator::App {

namespace fs = std::filesystem;

namespace {

/// A line for each file: its inode and whose it is to be. It follows a file that is renamed afterwards.
constexpr const char* notingChown = R"(#!/bin/sh
set -e
owner=
depth='-maxdepth 0'
for argument; do
    case $argument in
    -*R*) depth= ;;
    -*) ;;
    *)
        if [ -z "$owner" ]; then
            owner=$argument
        else
            find "$argument" $depth -printf "%i $owner\n" >>"$LYR_OWNERS"
        fi
        ;;
    esac
done
)";

using Environment = std::unique_ptr<char*, decltype(&g_strfreev)>;

/// Runs a program of the host to its end; answers what it printed.
std::string run(const std::string& package, std::vector<std::string> command, const Environment& environment)
{
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    char *output = nullptr, *complaint = nullptr;
    int status = 0;
    GError* error = nullptr;
    const bool ran = g_spawn_sync(nullptr, arguments.data(), environment.get(), G_SPAWN_SEARCH_PATH, nullptr, nullptr,
                         &output, &complaint, &status, &error)
        && g_spawn_check_wait_status(status, &error);
    const std::unique_ptr<char, decltype(&g_free)> printed(output, g_free), said(complaint, g_free);
    if (ran)
        return printed.get();
    const std::unique_ptr<GError, decltype(&g_error_free)> reason(error, g_error_free);
    const std::string words = said && *said ? said.get() : reason->message;
    throw std::runtime_error(
        package + ": cannot be installed: " + command.front() + ": " + words.substr(0, words.find('\n')));
}

/// Of "501/501", "mobile:staff" or the like.
FileOwner ownerAndGroup(const std::string& text)
{
    return ownerNamed(text.substr(0, text.find_first_of(":./")));
}

/// By path, from lines like "-rw-r--r-- 0/0 401 2020-11-15 00:00 ./Library/a b.png".
std::map<std::string, FileOwner> ownersInListing(const std::string& listing)
{
    std::map<std::string, FileOwner> owners;
    std::istringstream lines(listing);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream columns(line);
        std::string mode, owner, size, day, time, path;
        columns >> mode >> owner >> size >> day >> time;
        std::getline(columns >> std::ws, path);
        if (path.starts_with("./") && path.size() > 2)
            owners[path.substr(1, path.find_last_not_of('/'))] = ownerAndGroup(owner);
    }
    return owners;
}

std::map<ino_t, FileOwner> ownersInNotes(const fs::path& notes)
{
    std::map<ino_t, FileOwner> owners;
    std::ifstream lines(notes);
    ino_t inode = 0;
    for (std::string owner; lines >> inode >> owner;)
        owners[inode] = ownerAndGroup(owner);
    return owners;
}

std::set<std::string> pathsUnder(const fs::path& root)
{
    std::set<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(root))
        paths.insert("/" + fs::relative(entry.path(), root).string());
    return paths;
}

/// Runs the package's script; answers what it gave away.
std::map<ino_t, FileOwner> configure(const std::string& package, const fs::path& root, const Environment& plain)
{
    const TemporaryFolder folder("lyr-package");
    const fs::path control = folder.path() / "control", tools = folder.path() / "tools",
                   notes = folder.path() / "owners";
    run(package, {"dpkg-deb", "--control", package, control}, plain);
    if (!fs::exists(control / "postinst"))
        return {};
    fs::create_directory(tools);
    std::ofstream(tools / "chown") << notingChown;
    fs::permissions(tools / "chown", fs::perms::owner_all);
    char** variables = g_get_environ();
    variables = g_environ_setenv(variables, "DPKG_ROOT", root.c_str(), true);
    variables = g_environ_setenv(variables, "LYR_OWNERS", notes.c_str(), true);
    const char* path = g_environ_getenv(variables, "PATH");
    const std::string search = tools.string() + ":" + (path ? path : "/usr/bin:/bin");
    const Environment ours(g_environ_setenv(variables, "PATH", search.c_str(), true), g_strfreev);
    run(package, {"/bin/sh", control / "postinst", "configure"}, ours);
    return ownersInNotes(notes);
}

}

void installPackage(const std::string& package)
{
    PhoneFiles& files = PhoneFiles::shared();
    const fs::path root = fs::absolute(files.root());
    const Environment plain(g_get_environ(), g_strfreev);
    const std::set<std::string> before = pathsUnder(root);
    const TemporaryFolder folder("lyr-package");
    const std::string archive = folder.path() / "files.tar";
    run(package, {"/bin/sh", "-c", "dpkg-deb --fsys-tarfile \"$0\" >\"$1\"", package, archive}, plain);
    const auto listed = ownersInListing(run(package, {"tar", "--numeric-owner", "-tvf", archive}, plain));
    run(package, {"dpkg-deb", "--extract", package, root}, plain);
    const auto given = configure(package, root, plain);

    for (const std::string& path : pathsUnder(root)) {
        struct stat status { };
        ::lstat((root.string() + path).c_str(), &status);
        if (const auto away = given.find(status.st_ino); away != given.end())
            files.give(path, away->second);
        else if (!before.contains(path))
            files.give(path, listed.contains(path) ? listed.at(path) : FileOwner::root);
    }
}

}
