// Allocation goes through +allocWithZone: and -dealloc of each root stand-in class, so that objects of classes
// that the extension derives from a stand-in get their C++ side too.
#include "Simulator/Runtime/StandInRegistry.hpp"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" id NSAllocateObject(Class type, unsigned long extraBytes, void* zone);
extern "C" void NSDeallocateObject(id object);

namespace Simulator {

static constexpr const char* standInVariable = "_standIn";

/// What birth, death and every message need to know of a class. Made when its first object is seen.
struct StandInRegistry::Kind {
    std::string name;
    /// Where an object keeps the pointer to its C++ side; 0 for a class that is no stand-in.
    std::ptrdiff_t slot = 0;
    Factory factory = nullptr;
    std::vector<std::ptrdiff_t> ownedIvars;
    long liveCount = 0;

    StandIn*& standInOf(id object) const
    {
        return *reinterpret_cast<StandIn**>(reinterpret_cast<char*>(object) + slot);
    }
};

[[noreturn]] static void explain(const char* name, const char* problem, const char* advice)
{
    std::fprintf(stderr, "lyr: cannot register class %s: %s %s\n", name, problem, advice);
    std::abort();
}

StandInRegistry::StandInRegistry() = default;
StandInRegistry::~StandInRegistry() = default;

StandInRegistry& StandInRegistry::shared()
{
    static StandInRegistry registry;
    return registry;
}

Class StandInRegistry::open(const char* name, const char* superclass, bool isRoot, Factory factory)
{
    Class super = objc_getClass(superclass);
    if (!super)
        explain(name, "no superclass named", superclass);
    Class type = objc_allocateClassPair(super, name, 0);
    if (!type)
        explain(name, "the name is taken;", "register each class once");
    if (isRoot) {
        class_addIvar(type, standInVariable, sizeof(StandIn*), 3, "^v");
        class_addMethod(object_getClass(reinterpret_cast<id>(type)), sel_registerName("allocWithZone:"),
            reinterpret_cast<IMP>(&allocate), "@@:^v");
        class_addMethod(type, sel_registerName("dealloc"), reinterpret_cast<IMP>(&deallocate), "v@:");
    }
    m_entries[type] = {factory, {}};
    return type;
}

void StandInRegistry::declareOwnedIvar(Class type, const char* name)
{
    m_entries[type].ownedIvars.push_back(name);
}

void StandInRegistry::close(Class type)
{
    objc_registerClassPair(type);
}

StandInRegistry::Kind StandInRegistry::kindOf(Class type) const
{
    Kind kind;
    kind.name = class_getName(type);
    Ivar slot = class_getInstanceVariable(type, standInVariable);
    kind.slot = slot ? ivar_getOffset(slot) : 0;
    for (; type; type = class_getSuperclass(type)) {
        auto found = m_entries.find(type);
        if (found == m_entries.end())
            continue;
        if (!kind.factory)
            kind.factory = found->second.factory;
        for (const std::string& name : found->second.ownedIvars)
            kind.ownedIvars.push_back(ivar_getOffset(class_getInstanceVariable(type, name.c_str())));
    }
    return kind;
}

StandInRegistry::Kind& StandInRegistry::kind(Class type)
{
    struct Recent {
        Class type;
        Kind* kind;
    };
    static std::array<Recent, 256> recent{};
    Recent& place = recent[(reinterpret_cast<std::uintptr_t>(type) >> 5) % recent.size()];
    if (place.type != type) {
        StandInRegistry& registry = shared();
        auto& known = registry.m_kinds[type];
        if (!known)
            known = std::make_unique<Kind>(registry.kindOf(type));
        place = {type, known.get()};
    }
    return *place.kind;
}

id StandInRegistry::allocate(Class type, SEL, void* zone)
{
    Kind& kind = StandInRegistry::kind(type);
    id object = NSAllocateObject(type, 0, zone);
    std::unique_ptr<StandIn> standIn = kind.factory();
    standIn->m_object = object;
    kind.standInOf(object) = standIn.release();
    ++kind.liveCount;
    return object;
}

void StandInRegistry::deallocate(id object, SEL)
{
    Kind& kind = StandInRegistry::kind(object_getClass(object));
    --kind.liveCount;
    delete kind.standInOf(object);
    for (const std::ptrdiff_t offset : kind.ownedIvars)
        ObjC::release(*reinterpret_cast<id*>(reinterpret_cast<char*>(object) + offset));
    NSDeallocateObject(object);
}

long StandInRegistry::liveCount(const std::string& className) const
{
    long total = 0;
    for (const auto& [type, kind] : m_kinds)
        total += kind->name == className ? kind->liveCount : 0;
    return total;
}

long StandInRegistry::liveCount() const
{
    long total = 0;
    for (const auto& [type, kind] : m_kinds)
        total += kind->liveCount;
    return total;
}

std::vector<std::string> StandInRegistry::classNames() const
{
    std::vector<std::string> names;
    for (const auto& [type, entry] : m_entries)
        names.emplace_back(class_getName(type));
    return names;
}

StandIn* StandInRegistry::find(id object)
{
    if (!object)
        return nullptr;
    const Kind& kind = StandInRegistry::kind(object_getClass(object));
    return kind.slot ? kind.standInOf(object) : nullptr;
}

}
