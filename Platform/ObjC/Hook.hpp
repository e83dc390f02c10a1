// Interceptions as rows of a table: class, selector, the function that takes the method's place.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Platform/Substrate/MSHookMessageEx.hpp"

#include <span>
#include <string_view>

namespace ObjC {

/// One row: a method replaced (`stock` receives what it was), or a method added. `types` describes the function.
struct HookRow {
    const char* className;
    const char* selectorName;
    IMP replacement;
    IMP* stock;
    const char* types;
};

/// What the method was before the interception; nil until it is installed.
template <auto function>
inline constinit IMP stockImplementation = nullptr;

/// While it is set every interception hands on to the method that it replaced.
inline constinit bool standsAside = false;

/// The function as an interception that can stand aside.
template <auto function, bool owned>
struct Interception;

template <class Result, class Self, class... Arguments, Result (*function)(Self, SEL, Arguments...), bool owned>
struct Interception<function, owned> : Adapter<function, owned> {
    static WireType<Result> call(id self, SEL command, WireType<Arguments>... arguments)
    {
        auto stock = reinterpret_cast<decltype(&call)>(stockImplementation<function>);
        if (standsAside && stock)
            return stock(self, command, arguments...);
        return Adapter<function, owned>::call(self, command, arguments...);
    }
    static IMP implementation() { return reinterpret_cast<IMP>(&call); }
};

/// A row that replaces an existing method.
template <FixedString className, FixedString selectorName, auto function>
inline HookRow hooked()
{
    using Method = Interception<function, returnsOwned(selectorName.view())>;
    static_assert(Method::arity == argumentCount(selectorName.view()),
        "a selector takes one argument for each colon in its name");
    listHook<"hook", className, selectorName, Method>();
    return {
        className.text, selectorName.text, Method::implementation(), &stockImplementation<function>, Method::types()};
}

/// A row that adds a method under a new selector.
template <FixedString className, FixedString selectorName, auto function>
inline HookRow added()
{
    using Method = Adapter<function, returnsOwned(selectorName.view())>;
    static_assert(Method::arity == argumentCount(selectorName.view()),
        "a selector takes one argument for each colon in its name");
    listHook<"added", className, selectorName, Method>();
    return {className.text, selectorName.text, Method::implementation(), nullptr, Method::types()};
}

/// Runs the stock method of an interception.
template <auto function>
struct Stock;

template <class Result, class Self, class... Arguments, Result (*function)(Self, SEL, Arguments...)>
struct Stock<function> {
    static Result call(const Self& self, SEL command, const std::remove_cvref_t<Arguments>&... arguments)
    {
        return callImplementation<Result>(stockImplementation<function>, self.raw(), command, arguments...);
    }
    /// An initializer consumes its receiver and hands back an object that the caller owns.
    static Result initialize(const Self& self, SEL command, const std::remove_cvref_t<Arguments>&... arguments)
    {
        return callImplementation<Result, true>(stockImplementation<function>, self.raw(), command, arguments...);
    }
};

template <auto function, class... Arguments>
inline auto stock(const Arguments&... arguments)
{
    return Stock<function>::call(arguments...);
}

template <auto function, class... Arguments>
inline auto stockInitializer(const Arguments&... arguments)
{
    return Stock<function>::initialize(arguments...);
}

/// The rows of one purpose, under a name for whoever inspects the library.
struct HookTable {
    const char* name;
    const HookRow* rows;
    unsigned long count;

    std::span<const HookRow> all() const { return {rows, count}; }
};

/// The next type of an encoding without what compilers write differently: offsets, and qualifiers such as const.
inline const char* nextOfTypes(const char* types)
{
    while (*types && std::string_view("0123456789rnNoORV").find(*types) != std::string_view::npos)
        ++types;
    return types;
}

/// Whether two encodings are of methods that can stand for one another.
inline bool haveSameTypes(const char* left, const char* right)
{
    if (!left || !right)
        return false;
    for (;; ++left, ++right) {
        left = nextOfTypes(left);
        right = nextOfTypes(right);
        if (*left != *right)
            return false;
        if (!*left)
            return true;
    }
}

/// Installs the rows in their order. An interception whose class or method this system lacks, or whose method has other
/// types than the function that would take its place, is left out: a call with other arguments would end the shell.
inline void install(std::span<const HookRow> rows, void (*leftOut)(const HookRow&))
{
    for (const HookRow& row : rows) {
        Class type = objc_getClass(row.className);
        SEL selector = sel_registerName(row.selectorName);
        if (!row.stock) {
            class_addMethod(type, selector, row.replacement, row.types);
            continue;
        }
        Method method = type ? class_getInstanceMethod(type, selector) : nullptr;
        if (method && haveSameTypes(method_getTypeEncoding(method), row.types))
            MSHookMessageEx(type, selector, row.replacement, row.stock);
        else
            leftOut(row);
    }
}

}
