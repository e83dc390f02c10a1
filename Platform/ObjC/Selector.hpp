// Selectors by literal, and what their names say: number of arguments, ownership of the result.
#pragma once

#include "Platform/ObjC/FixedString.hpp"
#include "Platform/ObjC/Runtime.hpp"

namespace ObjC {

/// The registered selector of a literal, looked up at its first use.
template <FixedString name>
inline SEL selector()
{
    static SEL registered = nullptr;
    if (!registered) [[unlikely]]
        registered = sel_registerName(name.text);
    return registered;
}

/// How many arguments a selector takes: one for each colon.
consteval std::size_t argumentCount(std::string_view selectorName)
{
    std::size_t count = 0;
    for (char character : selectorName)
        count += character == ':';
    return count;
}

/// A selector belongs to a method family if it begins with the family's word and the word ends there.
consteval bool isOfFamily(std::string_view selectorName, std::string_view family)
{
    while (selectorName.starts_with('_'))
        selectorName.remove_prefix(1);
    if (!selectorName.starts_with(family))
        return false;
    if (selectorName.size() == family.size())
        return true;
    char next = selectorName[family.size()];
    return next < 'a' || next > 'z';
}

consteval bool isInitializer(std::string_view selectorName)
{
    return isOfFamily(selectorName, "init");
}

/// Whether the caller owns the result, by the platform's naming rule.
consteval bool returnsOwned(std::string_view selectorName)
{
    return isOfFamily(selectorName, "alloc") || isOfFamily(selectorName, "new") || isOfFamily(selectorName, "copy")
        || isOfFamily(selectorName, "mutableCopy") || isInitializer(selectorName);
}

}
