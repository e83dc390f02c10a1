// The list of all messages that are sent, as the compiler knows them.
#pragma once

#include "Platform/ObjC/Encoding.hpp"

namespace ObjC {

/// "message - UILabel setText: v@:@": the kind of the receiver, its class, the selector, the types.
template <char kind, FixedString className, class Result, FixedString name, class... Arguments>
consteval auto messageText()
{
    using std::literals::operator""sv;
    EncodingText line;
    for (auto piece : {kind == '+' ? "message + "sv : "message - "sv, className.view(), " "sv, name.view(), " "sv,
             methodEncoding<Result, Arguments...>.view()})
        line.append(piece);
    return line.text;
}

/// A message stands in the program's texts when the phone's code is built without optimisation, which is done for the
/// list alone. No other build has a trace of it.
template <char kind, FixedString className, class Result, FixedString name, class... Arguments>
inline void listMessage()
{
    static_assert(argumentCount(name.view()) == sizeof...(Arguments),
        "a selector takes one argument for each colon in its name");
#if defined(__APPLE__) && !defined(__OPTIMIZE__)
    [[gnu::used]] static constexpr auto line = messageText<kind, className, Result, name, Arguments...>();
#endif
}

}
