// The phone's files.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace NS {

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
};

}
