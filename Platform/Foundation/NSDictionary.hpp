// Keyed collections, and property-list files that hold one.
#pragma once

#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSString.hpp"

namespace NS {

class MutableDictionary;

class Dictionary : public ObjC::Class_<Dictionary, Object, "NSDictionary"> {
public:
    using Class_::Class_;

    /// The dictionary in a property-list file; nil if there is none.
    static Dictionary dictionaryWithContentsOfFile(const String& path)
    {
        return sendClass<Dictionary, "dictionaryWithContentsOfFile:">(path);
    }
    unsigned long count() const { return send<unsigned long, "count">(); }
    Array allKeys() const { return send<Array, "allKeys">(); }
    /// The value under a key, as a facade of its class; nil if it is absent or of another class.
    template <ObjC::Handle T>
    T objectForKey(const ObjC::Object& key) const
    {
        return send<ObjC::Object, "objectForKey:">(key).template as<T>();
    }
    Dictionary copy() const { return send<Dictionary, "copy">(); }
    MutableDictionary mutableCopy() const;
    bool writeToFile(const String& path, bool atomically) const
    {
        return send<bool, "writeToFile:atomically:">(path, atomically);
    }
};

class MutableDictionary : public ObjC::Class_<MutableDictionary, Dictionary, "NSMutableDictionary"> {
public:
    using Class_::Class_;

    static MutableDictionary dictionary() { return sendClass<MutableDictionary, "dictionary">(); }
    static MutableDictionary dictionaryWithContentsOfFile(const String& path)
    {
        return sendClass<MutableDictionary, "dictionaryWithContentsOfFile:">(path);
    }
    /// Stores a value under a key; neither may be nil.
    void setObject(const ObjC::Object& value, const ObjC::Object& key) const
    {
        send<void, "setObject:forKey:">(value, key);
    }
};

inline MutableDictionary Dictionary::mutableCopy() const
{
    return send<MutableDictionary, "mutableCopy">();
}

}
