// Bytes.
#pragma once

#include "Platform/Foundation/NSURL.hpp"

namespace NS {

class Data : public ObjC::Class_<Data, Object, "NSData"> {
public:
    using Class_::Class_;

    /// The bytes of a file; nil if it cannot be read.
    static Data dataWithContentsOfFile(const String& path) { return sendClass<Data, "dataWithContentsOfFile:">(path); }
    static Data dataWithContentsOfURL(const URL& url) { return sendClass<Data, "dataWithContentsOfURL:">(url); }
    static Data dataWithBytes(const void* bytes, unsigned long length)
    {
        return sendClass<Data, "dataWithBytes:length:">(bytes, length);
    }
    const void* bytes() const { return send<const void*, "bytes">(); }
    unsigned long length() const { return send<unsigned long, "length">(); }
    bool writeToFile(const String& path, bool atomically) const
    {
        return send<bool, "writeToFile:atomically:">(path, atomically);
    }
};

}
