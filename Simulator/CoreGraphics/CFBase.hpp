// Core Foundation's view of objects: making them, owning them, and errors.
#pragma once

#include "Platform/Foundation/CFBase.hpp"
#include "Simulator/Runtime/Binder.hpp"

#include <string_view>

namespace Simulator {

/// A new object of a registered class, for classes that nobody initializes by message.
inline ObjC::Object newInstance(const char* className)
{
    return ObjC::Object::adopting(
        ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass(className)), ObjC::selector<"alloc">()));
}

/// The stand-in behind a Core Foundation reference; null if it is null or of another kind.
template <class T>
inline T* standInBehind(const void* reference)
{
    return standInOrNull<T>(ObjC::Object(static_cast<id>(const_cast<void*>(reference))));
}

/// A new reference that the caller of a C function owns.
template <class Reference>
inline Reference ownedReference(ObjC::Object object)
{
    return reinterpret_cast<Reference>(object.leak());
}

ObjC::Object makeError(const NS::String& domain, long code, std::string_view description);
/// Hands an error to a caller that asked for one; the caller owns it.
void deliverError(id* destination, ObjC::Object error);

}
