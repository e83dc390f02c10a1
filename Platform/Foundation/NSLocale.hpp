// The user's language and region.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace NS {

class Locale : public ObjC::Class_<Locale, Object, "NSLocale"> {
public:
    using Class_::Class_;

    static Locale currentLocale() { return sendClass<Locale, "currentLocale">(); }
    String localeIdentifier() const { return send<String, "localeIdentifier">(); }
};

}
