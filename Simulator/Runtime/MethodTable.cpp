// Reads and changes a class's own methods by the runtime's functions.
#include "Simulator/Runtime/MethodTable.hpp"

#include <cstdlib>

/// Renews the copies of inherited methods that the runtime keeps for the class and those derived from it. The runtime
/// calls it when a method is added, and exports it without declaring it.
extern "C" void __objc_update_dispatch_table_for_class(Class type);

namespace Simulator {

namespace {

/// A method as compilers lay it out for this runtime.
struct MethodRecord {
    SEL selector;
    const char* types;
    IMP implementation;
};

/// The runtime's own way looks the method up in every class there is.
void setImplementation(Class type, Method method, IMP implementation)
{
    auto* record = reinterpret_cast<MethodRecord*>(method);
    if (record->implementation == method_getImplementation(method))
        record->implementation = implementation;
    else
        method_setImplementation(method, implementation);
    __objc_update_dispatch_table_for_class(type);
}

}

std::vector<Method> ownMethods(Class type)
{
    unsigned count = 0;
    Method* methods = class_copyMethodList(type, &count);
    std::vector<Method> result(methods, methods + count);
    std::free(methods);
    return result;
}

Method ownMethod(Class type, SEL selector)
{
    for (Method method : ownMethods(type))
        if (sel_isEqual(method_getName(method), selector))
            return method;
    return nullptr;
}

void setMethod(Class type, SEL selector, IMP implementation, const char* types)
{
    if (Method own = ownMethod(type, selector))
        setImplementation(type, own, implementation);
    else
        class_addMethod(type, selector, implementation, types);
}

}
