// Which C++ struct stands behind which class, and the birth and death of stand-in objects.
#pragma once

#include "Simulator/Runtime/StandIn.hpp"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Simulator {

class StandInRegistry {
public:
    using Factory = std::unique_ptr<StandIn> (*)();

    static StandInRegistry& shared();

    /// Makes and registers nothing yet: opens the class for methods. Ends the program with an explanation if the
    /// superclass is unknown or the name is taken, since that is a mistake in the simulator itself.
    Class open(const char* name, const char* superclass, bool isRoot, Factory factory);
    void declareOwnedIvar(Class type, const char* name);
    void close(Class type);

    /// Live objects of exactly that class; proof that nothing is leaked.
    long liveCount(const std::string& className) const;
    long liveCount() const;

    /// Of all classes that were registered.
    std::vector<std::string> classNames() const;

    /// The C++ side of an object of a registered class; null for any other object.
    static StandIn* find(id object);

private:
    StandInRegistry();
    ~StandInRegistry();

    static id allocate(Class type, SEL command, void* zone);
    static void deallocate(id object, SEL command);

    struct Entry {
        Factory factory;
        std::vector<std::string> ownedIvars;
    };
    struct Kind;
    static Kind& kind(Class type);
    Kind kindOf(Class type) const;

    std::map<Class, Entry> m_entries;
    std::unordered_map<Class, std::unique_ptr<Kind>> m_kinds;
};

}
