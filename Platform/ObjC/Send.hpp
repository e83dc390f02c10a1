// The one funnel of all messages: from typed C++ values to the runtime and back.
#pragma once

#include "Platform/ObjC/Selector.hpp"

#include <type_traits>

namespace ObjC {

class Object;

template <class T>
concept Handle = std::is_base_of_v<Object, T>;

/// How a value travels. A handle travels as its object. A small integer travels as a whole one, because
/// compilers disagree about the upper bits of a register that carries fewer.
template <class T>
struct Wire {
    using Type = T;
};

template <class T>
requires(std::is_integral_v<T> && sizeof(T) < sizeof(int)) struct Wire<T> {
    using Type = std::conditional_t<std::is_signed_v<T>, int, unsigned>;
};

template <class T>
requires std::is_enum_v<T>
struct Wire<T> : Wire<std::underlying_type_t<T>> {
};

template <Handle T>
struct Wire<T> {
    using Type = id;
};

template <class T>
using WireType = typename Wire<std::remove_cvref_t<T>>::Type;

template <class T>
inline WireType<T> toWire(const T& value)
{
    if constexpr (Handle<T>)
        return value.raw();
    else
        return static_cast<WireType<T>>(value);
}

/// A value as it came over the wire; an object result is retained, or adopted if the caller owns it already.
template <class T, bool owned = false>
inline T fromWire(WireType<T> value)
{
    if constexpr (Handle<T>)
        return owned ? T::adopting(value) : T(value);
    else if constexpr (std::is_same_v<T, bool>)
        return (value & 0xff) != 0;
    else
        return static_cast<T>(value);
}

/// Where to jump for a message to `receiver`, which is not nil.
template <class Result, class... Arguments>
inline auto implementationFor([[maybe_unused]] id receiver, [[maybe_unused]] SEL selector)
{
    using Function = Result (*)(id, SEL, Arguments...);
#if defined(__APPLE__)
#if defined(__x86_64__)
    if constexpr (!std::is_void_v<Result> && std::is_class_v<Result> && sizeof(Result) > 2 * sizeof(void*))
        return reinterpret_cast<Function>(&objc_msgSend_stret);
    else
#endif
        return reinterpret_cast<Function>(&objc_msgSend);
#else
    return reinterpret_cast<Function>(objc_msg_lookup(receiver, selector));
#endif
}

/// Sends one message by raw object and selector. A message to nil gives the zero value of any result type.
template <class Result, bool owned = false, class... Arguments>
inline Result sendMessage(id receiver, SEL selector, const Arguments&... arguments)
{
    if constexpr (std::is_void_v<Result>) {
        if (receiver)
            implementationFor<void, WireType<Arguments>...>(receiver, selector)(
                receiver, selector, toWire(arguments)...);
    } else {
        if (!receiver) [[unlikely]]
            return Result();
        return fromWire<Result, owned>(implementationFor<WireType<Result>, WireType<Arguments>...>(receiver, selector)(
            receiver, selector, toWire(arguments)...));
    }
}

/// Calls an implementation that was found before (a stock method, an inherited one).
template <class Result, bool owned = false, class... Arguments>
inline Result callImplementation(IMP implementation, id receiver, SEL selector, const Arguments&... arguments)
{
    if constexpr (std::is_void_v<Result>) {
        if (implementation)
            reinterpret_cast<void (*)(id, SEL, WireType<Arguments>...)>(implementation)(
                receiver, selector, toWire(arguments)...);
    } else {
        if (!implementation)
            return Result();
        return fromWire<Result, owned>(reinterpret_cast<WireType<Result> (*)(id, SEL, WireType<Arguments>...)>(
            implementation)(receiver, selector, toWire(arguments)...));
    }
}

}
