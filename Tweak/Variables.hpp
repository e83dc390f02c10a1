// Process-wide variables. Each enters a list with its name and type, from which an inspector reads it.
#pragma once

#include "Platform/ObjC/Encoding.hpp"
#include "Platform/ObjC/Object.hpp"
#include "Product/VariableList.hpp"

namespace LYR {

/// How the runtime writes the type. What has the address of an object is read as that object.
template <class T>
inline constexpr const char* variableType = [] {
    if constexpr (requires(T& variable) { static_cast<id*>(variable.address()); })
        return "@";
    else
        return ObjC::encodingOf<T>().data();
}();

extern constinit Product::VariableList variables;

}

/// Defines a variable: its type, its name, what it starts with. Without the alignment there were gaps between the rows.
#define LYR_VARIABLE(Type, name, ...)                                                                                  \
    constinit Type name{__VA_ARGS__};                                                                                  \
    [[gnu::used, gnu::section(OBJC_SECTION(lyr_variables))]] alignas(void*) static constinit Product::VariableRow      \
        name##Row{#name, variableType<decltype(name)>, &name}

/// Declares or defines a variable of a view, which gives the view its name.
#define LYR_EXTERN_VIEW(Type, name) extern constinit ObjC::NamedVariable<Type, #name> name
#define LYR_VIEW(Type, name)                                                                                           \
    using name##Variable = ObjC::NamedVariable<Type, #name>;                                                           \
    LYR_VARIABLE(name##Variable, name)
