// Interceptions as rows of a table: class, selector, the function that takes the method's place.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Platform/Substrate/MSHookMessageEx.hpp"

#include <span>

namespace ObjC {

/// One row: a method replaced (`stock` receives what it was), or a method added (`types` describes it).
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

/// A row that replaces an existing method.
template <FixedString className, FixedString selectorName, auto function>
inline HookRow hooked()
{
    using Method = Adapter<function, returnsOwned(selectorName.view())>;
    static_assert(Method::arity == argumentCount(selectorName.view()),
        "a selector takes one argument for each colon in its name");
    return {className.text, selectorName.text, Method::implementation(), &stockImplementation<function>, nullptr};
}

/// A row that adds a method under a new selector.
template <FixedString className, FixedString selectorName, auto function>
inline HookRow added()
{
    using Method = Adapter<function, returnsOwned(selectorName.view())>;
    static_assert(Method::arity == argumentCount(selectorName.view()),
        "a selector takes one argument for each colon in its name");
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

/// Installs rows in their order. Neither call below does anything for a class that the system lacks.
inline void install(std::span<const HookRow> rows)
{
    for (const HookRow& row : rows) {
        Class type = objc_getClass(row.className);
        SEL selector = sel_registerName(row.selectorName);
        if (row.stock)
            MSHookMessageEx(type, selector, row.replacement, row.stock);
        else
            class_addMethod(type, selector, row.replacement, row.types);
    }
}

}
