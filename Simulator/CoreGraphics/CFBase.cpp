// Core Foundation's functions. Its objects are Objective-C objects here, and its errors are NSError.
#include "Simulator/CoreGraphics/CFBase.hpp"

#include "Platform/Foundation/NSDictionary.hpp"

extern "C" {

[[gnu::visibility("default")]] const void* CFRetain(const void* object)
{
    ObjC::retain(static_cast<id>(const_cast<void*>(object)));
    return object;
}

[[gnu::visibility("default")]] void CFRelease(const void* object)
{
    ObjC::release(static_cast<id>(const_cast<void*>(object)));
}

[[gnu::visibility("default")]] id CFErrorCopyDescription(id error)
{
    ObjC::Object object(error);
    if (!object.respondsTo<"localizedDescription">())
        return nullptr;
    return object.send<NS::String, "localizedDescription">().leak();
}

extern id NSLocalizedDescriptionKey;
}

namespace Simulator {

ObjC::Object makeError(const NS::String& domain, long code, std::string_view description)
{
    auto details = NS::MutableDictionary::dictionary();
    details.setObject(NS::String::fromUTF8(description), ObjC::Object(NSLocalizedDescriptionKey));
    return ObjC::sendMessage<ObjC::Object>(reinterpret_cast<id>(objc_getClass("NSError")),
        ObjC::selector<"errorWithDomain:code:userInfo:">(), domain, code, details);
}

void deliverError(id* destination, ObjC::Object error)
{
    if (destination)
        *destination = error.leak();
}

}
