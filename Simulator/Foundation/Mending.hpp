// How Foundation's classes are mended: methods replaced in a whole family of classes, and classes whose objects are
// stand-ins.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Simulator/Runtime/MethodTable.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

namespace Simulator {

/// The row of a class, or of several that belong together, whose methods are replaced when the first phone starts.
class Mending : StandInRow {
public:
    template <class Rows>
    Mending(const char* name, Rows)
        : StandInRow(
            name, nullptr, [](const char*, const char*) { Rows()(); }, nullptr)
    {
    }
};

/// Gives `root` the method, and also every class derived from it that has one of its own.
void replaceInFamily(Class root, const char* selectorName, IMP implementation, const char* types);

template <auto function, bool owned = false>
inline void replaceInFamily(const char* root, const char* selectorName)
{
    using Method = ObjC::Adapter<function, owned>;
    replaceInFamily(objc_getClass(root), selectorName, Method::implementation(), Method::types());
}

/// Likewise for a class method.
template <auto function>
inline void replaceClassMethod(const char* root, const char* selectorName)
{
    using Method = ObjC::Adapter<function>;
    replaceInFamily(object_getClass(reinterpret_cast<id>(objc_getClass(root))), selectorName, Method::implementation(),
        Method::types());
}

/// +alloc of `className` itself makes objects of the stand-in class from now on.
void allocateAs(const char* className, const char* standInName);

/// Methods that the stand-in class would inherit from `className` raise, because they would use instance variables
/// that only the inherited initializers fill; those that every object has are NSObject's. Class methods stay.
void refuseInherited(const char* standInName, const char* className);

/// The class as the receiver of a message.
inline ObjC::Object classNamed(const char* name)
{
    return ObjC::Object(reinterpret_cast<id>(objc_getClass(name)));
}

}
