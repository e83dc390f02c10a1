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

/// Where an object of the class keeps the pointer to its C++ side; 0 for a class that is no stand-in.
static std::ptrdiff_t slotOffset(Class type)
{
    struct Known {
        Class type;
        std::ptrdiff_t offset;
    };
    static std::array<Known, 256> known{};
    Known& entry = known[(reinterpret_cast<std::uintptr_t>(type) >> 5) % known.size()];
    if (entry.type != type) {
        Ivar variable = class_getInstanceVariable(type, standInVariable);
        entry = {type, variable ? ivar_getOffset(variable) : 0};
    }
    return entry.offset;
}

static StandIn** slotOf(id object)
{
    std::ptrdiff_t offset = object ? slotOffset(object_getClass(object)) : 0;
    return offset ? reinterpret_cast<StandIn**>(reinterpret_cast<char*>(object) + offset) : nullptr;
}

[[noreturn]] static void explain(const char* name, const char* problem, const char* advice)
{
    std::fprintf(stderr, "lyr: cannot register class %s: %s %s\n", name, problem, advice);
    std::abort();
}

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
    entries_[type] = {factory, {}};
    return type;
}

void StandInRegistry::declareOwnedIvar(Class type, const char* name)
{
    entries_[type].ownedIvars.push_back(name);
}

void StandInRegistry::close(Class type)
{
    objc_registerClassPair(type);
}

const StandInRegistry::Entry* StandInRegistry::entryFor(Class type) const
{
    for (; type; type = class_getSuperclass(type)) {
        auto found = entries_.find(type);
        if (found != entries_.end())
            return &found->second;
    }
    return nullptr;
}

id StandInRegistry::allocate(Class type, SEL, void* zone)
{
    StandInRegistry& registry = shared();
    const Entry* entry = registry.entryFor(type);
    id object = NSAllocateObject(type, 0, zone);
    std::unique_ptr<StandIn> standIn = entry->factory();
    standIn->object_ = object;
    *slotOf(object) = standIn.release();
    ++registry.live_[class_getName(type)];
    return object;
}

void StandInRegistry::deallocate(id object, SEL)
{
    StandInRegistry& registry = shared();
    --registry.live_[class_getName(object_getClass(object))];
    delete *slotOf(object);
    registry.releaseOwnedIvars(object);
    NSDeallocateObject(object);
}

void StandInRegistry::releaseOwnedIvars(id object)
{
    for (Class type = object_getClass(object); type; type = class_getSuperclass(type)) {
        auto found = entries_.find(type);
        if (found == entries_.end())
            continue;
        for (const std::string& name : found->second.ownedIvars)
            ObjC::release(ObjC::InstanceVariable<id>(object, name.c_str()).get());
    }
}

long StandInRegistry::liveCount(const std::string& className) const
{
    auto found = live_.find(className);
    return found == live_.end() ? 0 : found->second;
}

long StandInRegistry::liveCount() const
{
    long total = 0;
    for (const auto& [name, count] : live_)
        total += count;
    return total;
}

StandIn* StandInRegistry::find(id object)
{
    StandIn** slot = slotOf(object);
    return slot ? *slot : nullptr;
}

}
