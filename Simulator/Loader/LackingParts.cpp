// The runtime's lookups stand here before its own, so that the extension can be told that there is no such class,
// method or variable, or that a method has other types. Everybody else gets what there is.
#include "Simulator/Loader/LackingParts.hpp"

#include "Simulator/Base/Phone.hpp"

#include <dlfcn.h>
#include <link.h>

#include <map>
#include <string_view>

namespace Simulator {

namespace {

/// What is lacking, and the types of methods that have others: "Class selector" → types.
struct Lacking {
    std::set<std::string, std::less<>> parts;
    std::map<std::string, std::string, std::less<>> types;
};

/// Null where nothing is lacking: the question comes often, and before there is a phone, too.
const Lacking* lackingIfAny()
{
    const auto* lacking = Phone::partIfMade<Lacking>();
    return lacking && !(lacking->parts.empty() && lacking->types.empty()) ? lacking : nullptr;
}

std::string partName(Class type, const char* member)
{
    return std::string(class_getName(type)) + " " + member;
}

/// Whether the class, or one that it derives from, is said to lack the member.
bool isLacking(const Lacking& lacking, Class type, const char* member)
{
    for (; type; type = class_getSuperclass(type)) {
        if (lacking.parts.contains(partName(type, member)))
            return true;
    }
    return false;
}

/// A library of the phone's kind is mapped by us, so that the system knows nothing of its code. Asked for every
/// message, so it is not `dladdr`, which looks for the symbol as well.
bool isExtension(void* code)
{
    dl_find_object found;
    return _dl_find_object(code, &found) != 0 || std::string_view(found.dlfo_link_map->l_name).ends_with("/LYR_Pro.so");
}

template <class Function>
Function runtimes(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

using Lookup = IMP (*)(id, SEL);

Lookup runtimeLookup()
{
    static const auto lookup = runtimes<Lookup>("objc_msg_lookup");
    return lookup;
}

/// In the place of a method that is lacking.
id raiseUnrecognized(id object, SEL selector)
{
    SEL report = sel_registerName("doesNotRecognizeSelector:");
    reinterpret_cast<void (*)(id, SEL, SEL)>(runtimeLookup()(object, report))(object, report, selector);
    return nullptr;
}

bool answersUnlessLacking(id object, SEL command, SEL selector)
{
    const auto* lacking = lackingIfAny();
    if (lacking && selector && isLacking(*lacking, object_getClass(object), sel_getName(selector)))
        return false;
    return reinterpret_cast<bool (*)(id, SEL, SEL)>(runtimeLookup()(object, command))(object, command, selector);
}

}

void setLackingParts(const std::set<std::string>& parts)
{
    auto& lacking = Phone::part<Lacking>();
    lacking = {};
    for (const std::string& part : parts) {
        const auto equals = part.find('=');
        if (equals == part.npos)
            lacking.parts.insert(part);
        else
            lacking.types[part.substr(0, equals)] = part.substr(equals + 1);
    }
}

bool isLacking(std::string_view part)
{
    const auto* lacking = lackingIfAny();
    return lacking && lacking->parts.contains(part);
}

bool isLacking(Class type, SEL selector)
{
    const auto* lacking = lackingIfAny();
    return lacking && type && isLacking(*lacking, type, sel_getName(selector));
}

}

using namespace Simulator;

extern "C" {

/// For a message of the extension. The receiver is not nil.
IMP lyr_message_lookup(id receiver, SEL selector)
{
    const auto* lacking = lackingIfAny();
    if (!lacking)
        return runtimeLookup()(receiver, selector);
    const std::string_view name = sel_getName(selector);
    if (name == "respondsToSelector:")
        return reinterpret_cast<IMP>(&answersUnlessLacking);
    if (isLacking(*lacking, object_getClass(receiver), name.data()))
        return reinterpret_cast<IMP>(&raiseUnrecognized);
    return runtimeLookup()(receiver, selector);
}

IMP objc_msg_lookup(id receiver, SEL selector)
{
    if (receiver && lackingIfAny() && isExtension(__builtin_return_address(0)))
        return lyr_message_lookup(receiver, selector);
    return runtimeLookup()(receiver, selector);
}

Class objc_getClass(const char* name)
{
    static const auto runtimeGetClass = runtimes<Class (*)(const char*)>("objc_getClass");
    const auto* lacking = lackingIfAny();
    if (lacking && lacking->parts.contains(name) && isExtension(__builtin_return_address(0)))
        return nullptr;
    return runtimeGetClass(name);
}

Method class_getInstanceMethod(Class type, SEL selector)
{
    static const auto runtimeGet = runtimes<Method (*)(Class, SEL)>("class_getInstanceMethod");
    if (isLacking(type, selector) && isExtension(__builtin_return_address(0)))
        return nullptr;
    return runtimeGet(type, selector);
}

Ivar class_getInstanceVariable(Class type, const char* name)
{
    static const auto runtimeGet = runtimes<Ivar (*)(Class, const char*)>("class_getInstanceVariable");
    const auto* lacking = lackingIfAny();
    if (lacking && name && isLacking(*lacking, type, name) && isExtension(__builtin_return_address(0)))
        return nullptr;
    return runtimeGet(type, name);
}

/// The extension asks for the types of a method that it is about to intercept; it has just looked that method up.
const char* method_getTypeEncoding(Method method)
{
    static const auto runtimeGet = runtimes<const char* (*)(Method)>("method_getTypeEncoding");
    const auto* lacking = lackingIfAny();
    if (lacking && !lacking->types.empty() && isExtension(__builtin_return_address(0))) {
        for (const auto& [part, types] : lacking->types) {
            const auto space = part.find(' ');
            Class type = objc_lookUpClass(part.substr(0, space).c_str());
            if (type && class_getInstanceMethod(type, sel_registerName(part.c_str() + space + 1)) == method)
                return types.c_str();
        }
    }
    return runtimeGet(method);
}
}
