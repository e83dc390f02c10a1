// The C++ side of a stand-in object: what the phone's class keeps behind its Objective-C face.
#pragma once

#include "Platform/ObjC/Object.hpp"

#include <string>

namespace Simulator {

/// Base of all stand-ins. It lives exactly as long as the object it stands behind.
class StandIn {
public:
    StandIn() = default;
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    virtual ~StandIn() = default;

    /// The Objective-C object itself, not retained.
    id object() const { return m_object; }
    /// The object as a facade, to send it messages as the framework would send them to itself.
    template <class T = ObjC::Object>
    T self() const
    {
        return T(m_object);
    }
    /// The name of the object's class, which may be one derived from the stand-in's.
    std::string className() const { return class_getName(object_getClass(m_object)); }

    /// The object in an instance variable that the registration declared with `.ivar`.
    template <class T = ObjC::Object>
    T ivar(const char* name) const
    {
        return T(ObjC::InstanceVariable<id>(m_object, name).get());
    }
    /// Stores an object in such a variable: retains the new one, releases the old one.
    void setIvar(const char* name, const ObjC::Object& value) const
    {
        ObjC::InstanceVariable<id> variable(m_object, name);
        id previous = variable.get();
        variable.set(ObjC::retain(value.raw()));
        ObjC::release(previous);
    }

private:
    friend class StandInRegistry;
    id m_object = nullptr;
};

}
