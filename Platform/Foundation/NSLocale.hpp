// The user's language and region.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"

namespace NS {

class Locale : public ObjC::Class_<Locale, Object, "NSLocale"> {
public:
    using Class_::Class_;

    static Locale currentLocale() { return sendClass<Locale, "currentLocale">(); }
    static Locale withIdentifier(const String& identifier) { return make<"initWithLocaleIdentifier:">(identifier); }
    /// The user's languages, the most preferred first.
    static Array preferredLanguages() { return sendClass<Array, "preferredLanguages">(); }
    /// Language, script and region of an identifier, each under its key.
    static Dictionary componentsFromLocaleIdentifier(const String& identifier)
    {
        return sendClass<Dictionary, "componentsFromLocaleIdentifier:">(identifier);
    }
    String localeIdentifier() const { return send<String, "localeIdentifier">(); }
};

}
