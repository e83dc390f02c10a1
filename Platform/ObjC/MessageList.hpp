// The lists of all messages that are sent, of the variables that are read, of the methods that are intercepted and of
// the classes that are built, as the compiler knows them.
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

/// "variable SBFLockScreenDateView _timeLabel"
template <FixedString className, FixedString name>
consteval auto variableText()
{
    using std::literals::operator""sv;
    EncodingText line;
    for (auto piece : {"variable "sv, className.view(), " "sv, name.view()})
        line.append(piece);
    return line.text;
}

/// "hook SBFLockScreenDateView layoutSubviews v@:", and likewise what is "added".
template <FixedString kind, FixedString className, FixedString name, class Method>
consteval auto hookText()
{
    using std::literals::operator""sv;
    EncodingText line;
    for (auto piece : {kind.view(), " "sv, className.view(), " "sv, name.view(), " "sv, Method::encoding.view()})
        line.append(piece);
    return line.text;
}

/// "built WKSColor"
template <FixedString className>
consteval auto classText()
{
    using std::literals::operator""sv;
    EncodingText line;
    for (auto piece : {"built "sv, className.view()})
        line.append(piece);
    return line.text;
}

/// A message stands in the program's texts when the phone's code is built without optimisation, which is done for the
/// list alone. No other build has a trace of it.
template <char kind, FixedString className, class Result, FixedString name, class... Arguments>
inline void listMessage()
{
    static_assert(
        argumentCount(name.view()) == sizeof...(Arguments), "a selector takes one argument for each colon in its name");
#if defined(__APPLE__) && !defined(__OPTIMIZE__)
    [[gnu::used]] static constexpr auto line = messageText<kind, className, Result, name, Arguments...>();
#endif
}

template <FixedString className, FixedString name>
inline void listVariable()
{
#if defined(__APPLE__) && !defined(__OPTIMIZE__)
    [[gnu::used]] static constexpr auto line = variableText<className, name>();
#endif
}

template <FixedString kind, FixedString className, FixedString name, class Method>
inline void listHook()
{
#if defined(__APPLE__) && !defined(__OPTIMIZE__)
    [[gnu::used]] static constexpr auto line = hookText<kind, className, name, Method>();
#endif
}

template <FixedString className>
inline void listClass()
{
#if defined(__APPLE__) && !defined(__OPTIMIZE__)
    [[gnu::used]] static constexpr auto line = classText<className>();
#endif
}

}
