// The runtime's lookup of classes stands here before its own, so that the extension can be told that there is none.
#include "Simulator/Loader/LackingParts.hpp"

#include "Simulator/Base/Phone.hpp"

#include <dlfcn.h>

#include <string_view>

namespace Simulator {

struct LackingParts : std::set<std::string> { };

std::set<std::string>& lackingParts()
{
    return Phone::part<LackingParts>();
}

/// Null where nothing is lacking: the question comes often, and before there is a phone, too.
static const LackingParts* lackingPartsIfAny()
{
    const auto* parts = Phone::partIfMade<LackingParts>();
    return parts && !parts->empty() ? parts : nullptr;
}

bool isLacking(Class type, SEL selector)
{
    const auto* parts = lackingPartsIfAny();
    return type && parts && parts->contains(std::string(class_getName(type)) + " " + sel_getName(selector));
}

/// A library of the phone's kind is mapped by us, so that the system knows no name for its code.
static bool isExtension(const void* code)
{
    Dl_info info;
    return !dladdr(code, &info) || std::string_view(info.dli_fname).ends_with("/LYR_Pro.so");
}

}

using namespace Simulator;

extern "C" Class objc_getClass(const char* name)
{
    static auto runtimeGetClass = reinterpret_cast<Class (*)(const char*)>(dlsym(RTLD_NEXT, "objc_getClass"));
    const auto* parts = lackingPartsIfAny();
    if (parts && parts->contains(name) && isExtension(__builtin_return_address(0)))
        return nullptr;
    return runtimeGetClass(name);
}
