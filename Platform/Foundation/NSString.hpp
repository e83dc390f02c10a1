// Text.
#pragma once

#include "Platform/Foundation/NSObject.hpp"

#include <charconv>
#include <iterator>
#include <string_view>

namespace NS {

enum class StringEncoding : unsigned long { utf8 = 4 };

class String : public ObjC::Class_<String, Object, "NSString"> {
public:
    using Class_::Class_;

    /// Text from UTF-8; nil if the bytes are no UTF-8.
    static String fromUTF8(std::string_view text)
    {
        return make<"initWithBytes:length:encoding:">(
            static_cast<const void*>(text.data()), static_cast<unsigned long>(text.size()), StringEncoding::utf8);
    }
    /// The number in decimal digits.
    static String fromInteger(long number)
    {
        char digits[24];
        const char* end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
        return fromUTF8({digits, static_cast<std::size_t>(end - digits)});
    }
    /// The text as UTF-8; it lives as long as the autorelease pool. Empty for nil.
    std::string_view utf8() const
    {
        const char* text = send<const char*, "UTF8String">();
        return text ? std::string_view(text) : std::string_view();
    }

    unsigned long length() const { return send<unsigned long, "length">(); }
    bool isEqualToString(const String& other) const { return send<bool, "isEqualToString:">(other); }
    bool containsString(const String& other) const { return send<bool, "containsString:">(other); }
    String stringByAppendingString(const String& other) const
    {
        return send<String, "stringByAppendingString:">(other);
    }
    String stringByReplacingOccurrencesOfString(const String& target, const String& replacement) const
    {
        return send<String, "stringByReplacingOccurrencesOfString:withString:">(target, replacement);
    }
    int intValue() const { return send<int, "intValue">(); }
    double doubleValue() const { return send<double, "doubleValue">(); }

    String uppercaseString() const { return send<String, "uppercaseString">(); }
    String lowercaseString() const { return send<String, "lowercaseString">(); }
    String capitalizedString() const { return send<String, "capitalizedString">(); }
};

inline namespace literals {

/// A constant text, made at its first use and kept for good.
template <ObjC::FixedString text>
inline const String& operator""_ns()
{
    static constinit ObjC::Variable<String> constant;
    if (!constant)
        constant = String::fromUTF8(text.view());
    return constant.reference();
}

}

}

using namespace NS::literals;
