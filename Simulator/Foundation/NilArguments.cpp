// Where the phone raises and GNUstep does not mind: nil arguments, and dictionaries that cannot be changed but pass for
// such as can.
#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Foundation/Exceptions.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"

namespace Simulator {

namespace {

void refuseNil(const ObjC::Object& argument, const char* call)
{
    if (!argument)
        raiseException("NSInvalidArgumentException", std::string(call) + ": nil argument");
}

NS::String stringByAppendingString(NS::String self, SEL, NS::String other)
{
    refuseNil(other, "-[NSString stringByAppendingString:]");
    return stringOf(utf16Of(self) + utf16Of(other));
}

/// What a method does apart from the question about its argument; there is one for each place that is mended.
template <auto call>
IMP original = nullptr;

void removeObjectForKey(ObjC::Object self, SEL command, ObjC::Object key)
{
    refuseNil(key, "-[NSMutableDictionary removeObjectForKey:]");
    ObjC::callImplementation<void>(original<removeObjectForKey>, self.raw(), command, key);
}

void appendAttributedString(ObjC::Object self, SEL command, ObjC::Object text)
{
    refuseNil(text, "-[NSMutableAttributedString appendAttributedString:]");
    ObjC::callImplementation<void>(original<appendAttributedString>, self.raw(), command, text);
}

ObjC::Object urlWithString(id self, SEL command, NS::String text)
{
    refuseNil(text, "+[NSURL URLWithString:]");
    return ObjC::callImplementation<ObjC::Object>(original<urlWithString>, self, command, text);
}

/// The phone's dictionaries are of one class, whether they can be changed or not.
bool isKindOfClass(ObjC::Object self, SEL command, Class type)
{
    return type == NS::MutableDictionary::type()
        || ObjC::callImplementation<bool>(original<isKindOfClass>, self.raw(), command, type);
}

/// Puts the function before the method of one class.
template <auto function>
void standBefore(Class type, const char* selectorName)
{
    using Method = ObjC::Adapter<function>;
    const SEL selector = sel_registerName(selectorName);
    original<function> = method_getImplementation(class_getInstanceMethod(type, selector));
    setMethod(type, selector, Method::implementation(), Method::types());
}

}

static const Mending nilArguments("NSString", [] {
    replaceInFamily<stringByAppendingString>("NSString", "stringByAppendingString:");
    standBefore<removeObjectForKey>(object_getClass(NS::MutableDictionary::dictionary().raw()), "removeObjectForKey:");
    standBefore<appendAttributedString>(NS::MutableAttributedString::type(), "appendAttributedString:");
    standBefore<urlWithString>(object_getClass(classNamed("NSURL").raw()), "URLWithString:");
    standBefore<isKindOfClass>(object_getClass(NS::MutableDictionary::dictionary().copy().raw()), "isKindOfClass:");
});

}
