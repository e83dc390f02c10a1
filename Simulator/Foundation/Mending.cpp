// Walks the runtime's class list and method tables.
#include "Simulator/Foundation/Mending.hpp"

#include <map>
#include <vector>

extern "C" id NSAllocateObject(Class type, unsigned long extraBytes, void* zone);

namespace Simulator {

namespace {

std::map<Class, Class>& standInClasses()
{
    static auto* classes = new std::map<Class, Class>;
    return *classes;
}

id allocateStandIn(Class type, SEL command, void* zone)
{
    const auto found = standInClasses().find(type);
    if (found == standInClasses().end())
        return NSAllocateObject(type, 0, zone);
    return ObjC::sendMessage<id>(reinterpret_cast<id>(found->second), command, zone);
}

void refuse(id object, SEL selector)
{
    ObjC::sendMessage<void>(object, ObjC::selector<"doesNotRecognizeSelector:">(), selector);
}

bool isDerivedFrom(Class type, Class root)
{
    while (type && type != root)
        type = class_getSuperclass(type);
    return type != nullptr;
}

/// Those of a class, or the metaclasses of those of a metaclass.
std::vector<Class> derivedClasses(Class root)
{
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(classes.data(), static_cast<int>(classes.size()));
    std::vector<Class> derived;
    for (const Class type : classes) {
        const Class candidate = class_isMetaClass(root) ? object_getClass(reinterpret_cast<id>(type)) : type;
        if (candidate != root && isDerivedFrom(candidate, root))
            derived.push_back(candidate);
    }
    return derived;
}

}

void replaceInFamily(Class root, const char* selectorName, IMP implementation, const char* types)
{
    const SEL selector = sel_registerName(selectorName);
    setMethod(root, selector, implementation, types);
    for (const Class type : derivedClasses(root)) {
        if (ownMethod(type, selector))
            setMethod(type, selector, implementation, types);
    }
}

void allocateAs(const char* className, const char* standInName)
{
    const Class type = objc_getClass(className);
    standInClasses()[type] = objc_getClass(standInName);
    setMethod(object_getClass(reinterpret_cast<id>(type)), sel_registerName("allocWithZone:"),
        reinterpret_cast<IMP>(&allocateStandIn), "@@:^v");
}

void refuseInherited(const char* standInName, const char* className)
{
    const Class standIn = objc_getClass(standInName);
    const Class root = objc_getClass("NSObject");
    const auto rootMethod
        = [&](SEL selector) { return method_getImplementation(class_getInstanceMethod(root, selector)); };
    for (const Method method : ownMethods(objc_getClass(className))) {
        const SEL selector = method_getName(method);
        if (ownMethod(standIn, selector))
            continue;
        // Life and death stay as every object has them.
        const IMP common = rootMethod(selector);
        class_addMethod(
            standIn, selector, common ? common : reinterpret_cast<IMP>(&refuse), method_getTypeEncoding(method));
    }
}

}
