// Case mapping, order and number parsing of strings as on the phone.
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Text/TextCase.hpp"

#include <algorithm>
#include <limits>

namespace Simulator {

namespace {

using CaseMapping = std::u16string (*)(std::u16string_view, std::string_view);

/// Without a locale the mapping is the same in every language.
template <CaseMapping map>
NS::String mapped(NS::String self, SEL)
{
    return stringOf(map(utf16Of(self), {}));
}

template <CaseMapping map>
NS::String mappedForUser(NS::String self, SEL)
{
    return stringOf(map(utf16Of(self), PhoneLocale::shared().locale));
}

template <CaseMapping map>
NS::String mappedWithLocale(NS::String self, SEL, ObjC::Object locale)
{
    const std::string identifier = locale ? textOf(locale.send<NS::String, "localeIdentifier">()) : std::string();
    return stringOf(map(utf16Of(self), identifier));
}

template <bool caseSensitive>
long compareForUser(NS::String self, SEL, NS::String other)
{
    if (!other)
        return 1;
    const int order = compareText(utf16Of(self), utf16Of(other), PhoneLocale::shared().locale, caseSensitive);
    return order < 0 ? -1 : order > 0;
}

/// The phone holds a number that is too large at the largest.
int intValue(NS::String self, SEL)
{
    const long value = self.send<long, "integerValue">();
    return static_cast<int>(std::clamp<long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// Nothing contains the empty text.
bool containsString(NS::String self, SEL, NS::String other)
{
    struct Range {
        unsigned long location;
        unsigned long length;
    };
    using Find = Range (*)(id, SEL, id);
    const SEL find = ObjC::selector<"rangeOfString:">();
    if (other && other.length() == 0)
        return false;
    return reinterpret_cast<Find>(objc_msg_lookup(self.raw(), find))(self.raw(), find, other.raw()).length > 0;
}

}

static const Mending nsString("NSString", [] {
    replaceInFamily<mapped<uppercase>>("NSString", "uppercaseString");
    replaceInFamily<mapped<lowercase>>("NSString", "lowercaseString");
    replaceInFamily<mapped<capitalized>>("NSString", "capitalizedString");
    replaceInFamily<mappedForUser<uppercase>>("NSString", "localizedUppercaseString");
    replaceInFamily<mappedForUser<lowercase>>("NSString", "localizedLowercaseString");
    replaceInFamily<mappedForUser<capitalized>>("NSString", "localizedCapitalizedString");
    replaceInFamily<mappedWithLocale<uppercase>>("NSString", "uppercaseStringWithLocale:");
    replaceInFamily<mappedWithLocale<lowercase>>("NSString", "lowercaseStringWithLocale:");
    replaceInFamily<mappedWithLocale<capitalized>>("NSString", "capitalizedStringWithLocale:");
    replaceInFamily<compareForUser<false>>("NSString", "localizedCaseInsensitiveCompare:");
    replaceInFamily<compareForUser<true>>("NSString", "localizedCompare:");
    replaceInFamily<compareForUser<true>>("NSString", "localizedStandardCompare:");
    replaceInFamily<intValue>("NSString", "intValue");
    replaceInFamily<containsString>("NSString", "containsString:");
});

}
