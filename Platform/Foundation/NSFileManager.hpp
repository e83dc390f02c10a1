// The phone's files.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace NS {

/// What the file system says of a file.
class FileAttributes : public ObjC::Class_<FileAttributes, Dictionary, "NSDictionary"> {
public:
    using Class_::Class_;

    unsigned long long fileSize() const { return send<unsigned long long, "fileSize">(); }
    /// The number by which the file system knows the file, whatever its name.
    unsigned long fileSystemFileNumber() const { return send<unsigned long, "fileSystemFileNumber">(); }
    Date fileModificationDate() const { return send<Date, "fileModificationDate">(); }
};

class FileManager : public ObjC::Class_<FileManager, Object, "NSFileManager"> {
public:
    using Class_::Class_;

    static FileManager defaultManager() { return sendClass<FileManager, "defaultManager">(); }
    bool fileExistsAtPath(const String& path) const { return send<bool, "fileExistsAtPath:">(path); }
    /// The names in a folder; nil if it cannot be listed.
    Array contentsOfDirectoryAtPath(const String& path) const
    {
        return send<Array, "contentsOfDirectoryAtPath:error:">(path, static_cast<id*>(nullptr));
    }
    /// Nil if there is no such file.
    FileAttributes attributesOfItemAtPath(const String& path) const
    {
        return send<FileAttributes, "attributesOfItemAtPath:error:">(path, static_cast<id*>(nullptr));
    }
};

}
