// Folders of resources.
#pragma once

#include "Platform/Foundation/NSURL.hpp"

namespace NS {

class Bundle : public ObjC::Class_<Bundle, Object, "NSBundle"> {
public:
    using Class_::Class_;

    /// The bundle in a folder; nil if there is no such folder.
    static Bundle bundleWithPath(const String& path) { return sendClass<Bundle, "bundleWithPath:">(path); }
    /// Where the bundle has that resource; nil if it has none.
    URL URLForResource(const String& name, const String& extension) const
    {
        return send<URL, "URLForResource:withExtension:">(name, extension);
    }
};

}
