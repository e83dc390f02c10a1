// The preferences library: stored values bound to variables of the program.
#pragma once

#include "Platform/Foundation/NSString.hpp"

namespace HB {

class Preferences : public ObjC::PrivateClass_<Preferences, NS::Object, "HBPreferences"> {
public:
    using PrivateClass_::PrivateClass_;

    static Preferences withIdentifier(const NS::String& identifier) { return make<"initWithIdentifier:">(identifier); }
    /// Binds a variable: it receives the stored value or the default now, and later changes as they come.
    void registerBool(bool* variable, bool fallback, const NS::String& key) const
    {
        send<void, "registerBool:default:forKey:">(variable, fallback, key);
    }
    /// Binds an object variable, which owns what it is given: the new value is retained, the old one released.
    void registerObject(id* variable, const NS::Object& fallback, const NS::String& key) const
    {
        send<void, "registerObject:default:forKey:">(variable, fallback, key);
    }
    NS::Object objectForKey(const NS::String& key) const { return send<NS::Object, "objectForKey:">(key); }
    void setObject(const NS::Object& value, const NS::String& key) const
    {
        send<void, "setObject:forKey:">(value, key);
    }
};

}
