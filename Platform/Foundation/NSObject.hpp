// The root of the platform's classes: key-value access.
#pragma once

#include "Platform/ObjC/Object.hpp"

namespace NS {

class String;

class Object : public ObjC::Class_<Object, ObjC::Object, "NSObject"> {
public:
    using Class_::Class_;
    /// Any handle may stand for an object of no particular class.
    Object(const ObjC::Object& other)
        : Class_(other.raw())
    {
    }

    /// The value under a key: an accessor's result or an instance variable. Raises for an unknown key.
    template <ObjC::Handle T, ObjC::Handle Key = String>
    T valueForKey(const Key& key) const
    {
        return send<T, "valueForKey:">(key);
    }
    /// The shell's own form, which gives nil for an unknown key.
    template <ObjC::Handle T, ObjC::Handle Key = String>
    T safeValueForKey(const Key& key) const
    {
        return send<T, "safeValueForKey:">(key);
    }
};

}
