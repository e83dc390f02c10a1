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
    if constexpr (requires { requires sizeof(Result) > 2 * sizeof(void*); })
        return reinterpret_cast<Function>(&objc_msgSend_stret);
    else
#endif
        return reinterpret_cast<Function>(&objc_msgSend);
#else
    return reinterpret_cast<Function>(objc_msg_lookup(receiver, selector));
#endif
}

/// Calls a method's function. A result that travels as it is, is made where the caller wants it: no copy.
template <class Result, bool owned, class Function, class... Arguments>
inline Result call(Function function, id receiver, SEL selector, const Arguments&... arguments)
{
    if constexpr (std::is_same_v<Result, WireType<Result>>)
        return function(receiver, selector, toWire(arguments)...);
    else
        return fromWire<Result, owned>(function(receiver, selector, toWire(arguments)...));
}

/// Whether the runtime itself answers a message to nil with this kind of zero. Both do so where the result travels in
/// a whole register; GCC's does it for nothing else.
template <class Result>
inline constexpr bool nilAnswersZero
    = std::is_void_v<Result> || std::is_integral_v<Result> || std::is_pointer_v<Result>;

/// Sends one message by raw object and selector. A message to nil gives the zero value of any result type.
template <class Result, bool owned = false, class... Arguments>
inline Result sendMessage(id receiver, SEL selector, const Arguments&... arguments)
{
    if constexpr (!nilAnswersZero<WireType<Result>>) {
        if (!receiver) [[unlikely]]
            return Result();
    }
    return call<Result, owned>(implementationFor<WireType<Result>, WireType<Arguments>...>(receiver, selector),
        receiver, selector, arguments...);
}

/// Calls an implementation that was found before (a stock method, an inherited one).
template <class Result, bool owned = false, class... Arguments>
inline Result callImplementation(IMP implementation, id receiver, SEL selector, const Arguments&... arguments)
{
    if (!implementation)
        return Result();
    using Function = WireType<Result> (*)(id, SEL, WireType<Arguments>...);
    return call<Result, owned>(reinterpret_cast<Function>(implementation), receiver, selector, arguments...);
}

}
