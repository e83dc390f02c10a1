// Reading and writing by path, and the error objects of the phone's file system.
#include "Simulator/Foundation/FileAccess.hpp"

#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"

#include <array>
#include <cerrno>
#include <iterator>

extern "C" {
extern const id NSCocoaErrorDomain;
extern const id NSFilePathErrorKey;
}

namespace Simulator {

namespace {

/// The phone's error codes; the last row stands for every other errno.
struct ErrorCodes {
    int number;
    long reading;
    long writing;
};
constexpr std::array errorCodes = {
    ErrorCodes{ENOENT, 260, 4},
    ErrorCodes{EACCES, 257, 513},
    ErrorCodes{EPERM, 257, 513},
    ErrorCodes{EEXIST, 516, 516},
    ErrorCodes{ENOSPC, 640, 640},
    ErrorCodes{EROFS, 642, 642},
    ErrorCodes{ENAMETOOLONG, 258, 514},
    ErrorCodes{0, 256, 512},
};

}

std::optional<std::string> phonePathToRead(const std::string& path)
{
    const PhoneFiles& files = PhoneFiles::shared();
    if (files.root().empty())
        return std::nullopt;
    const std::string phonePath = files.phonePath(path);
    if (phonePath != path || files.isPhonePath(path) || files.exists(path))
        return phonePath;
    return std::nullopt;
}

std::optional<std::string> phonePathToWrite(const std::string& path)
{
    const PhoneFiles& files = PhoneFiles::shared();
    return files.root().empty() ? std::nullopt : std::optional(files.phonePath(path));
}

FileResult<std::string> readFile(const NS::String& path)
{
    const std::string name = textOf(path);
    if (name.empty())
        return {{}, ENOENT};
    const auto phonePath = phonePathToRead(name);
    return phonePath ? PhoneFiles::shared().read(*phonePath) : readHostFile(name);
}

FileResult<PhoneFiles::Content> loadFile(const NS::String& path)
{
    const std::string name = textOf(path);
    if (const auto phonePath = phonePathToRead(name); phonePath && !name.empty())
        return PhoneFiles::shared().load(*phonePath);
    const auto file = readFile(path);
    return {std::make_shared<const FileContent>(file.value), file.error};
}

int writeFile(const NS::String& path, std::string_view bytes, WriteMode mode)
{
    const auto phonePath = phonePathToWrite(textOf(path));
    return phonePath ? PhoneFiles::shared().write(*phonePath, bytes, mode) : ENODEV;
}

NS::String pathOfFileUrl(const ObjC::Object& url)
{
    return url && url.send<bool, "isFileURL">() ? url.send<NS::String, "path">() : NS::String();
}

void reportFileErrorCode(id* error, long code, const NS::String& path)
{
    if (!error)
        return;
    const NS::MutableDictionary details = NS::MutableDictionary::make();
    if (path)
        details.setObject(path, ObjC::Object(NSFilePathErrorKey));
    *error = classNamed("NSError").send<id, "errorWithDomain:code:userInfo:">(
        ObjC::Object(NSCocoaErrorDomain), code, details);
}

void reportFileError(id* error, int number, const NS::String& path, bool writing)
{
    std::size_t row = 0;
    while (errorCodes[row].number != number && errorCodes[row].number != 0)
        ++row;
    reportFileErrorCode(error, writing ? errorCodes[row].writing : errorCodes[row].reading, path);
}

}
