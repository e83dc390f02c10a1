// Locations.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace NS {

class URL : public ObjC::Class_<URL, Object, "NSURL"> {
public:
    using Class_::Class_;

    /// nil for a text that is no location.
    static URL URLWithString(const String& text) { return sendClass<URL, "URLWithString:">(text); }
    static URL fileURLWithPath(const String& path) { return sendClass<URL, "fileURLWithPath:">(path); }
    String path() const { return send<String, "path">(); }
};

}
