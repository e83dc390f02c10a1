// The user's locale and languages, and the phone's keys for the parts of a locale.
#include "Platform/Foundation/NSArray.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSLocale.hpp"
#include "Simulator/Base/Phone.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Text/LocaleNames.hpp"

#include <array>

namespace Simulator {

namespace {

struct KeyName {
    std::string_view gnustep;
    std::string_view phone;
};
constexpr std::array keyNames = {
    KeyName{"NSLocaleIdentifier", "kCFLocaleIdentifierKey"},
    KeyName{"NSLocaleLanguageCode", "kCFLocaleLanguageCodeKey"},
    KeyName{"NSLocaleCountryCode", "kCFLocaleCountryCodeKey"},
    KeyName{"NSLocaleScriptCode", "kCFLocaleScriptCodeKey"},
    KeyName{"NSLocaleVariantCode", "kCFLocaleVariantCodeKey"},
    KeyName{"NSLocaleCalendar", "kCFLocaleCalendarKey"},
    KeyName{"NSLocaleCurrencyCode", "kCFLocaleCurrencyCodeKey"},
    KeyName{"NSLocaleDecimalSeparator", "kCFLocaleDecimalSeparatorKey"},
};

IMP stockComponents = nullptr;
IMP stockIdentifier = nullptr;
IMP stockLocaleIdentifier = nullptr;
IMP stockObjectForKey = nullptr;

/// Asked for at every refresh of the clock, so the object is kept as long as the user keeps the locale.
struct CurrentLocale {
    std::string identifier;
    NS::Locale object;
};

NS::Locale NSLocale_currentLocale(Class, SEL)
{
    auto& current = Phone::part<CurrentLocale>();
    if (!current.object || current.identifier != PhoneLocale::shared().locale) {
        current.identifier = PhoneLocale::shared().locale;
        current.object = NS::Locale::make<"initWithLocaleIdentifier:">(stringOf(current.identifier));
    }
    return current.object;
}

/// Every locale is made of its canonical identifier; GNUstep's own raises for a hyphen before the region.
NS::String NSLocale_canonicalIdentifier(Class, SEL, NS::String identifier)
{
    return identifier ? stringOf(localeName(textOf(identifier))) : NS::String();
}

/// GNUstep writes an underscore before a script.
NS::String NSLocale_localeIdentifier(id self, SEL command)
{
    return stringOf(localeName(textOf(ObjC::callImplementation<NS::String>(stockLocaleIdentifier, self, command))));
}

NS::Array NSLocale_preferredLanguages(Class, SEL)
{
    const NS::MutableArray languages = NS::MutableArray::make();
    for (const auto& language : PhoneLocale::shared().languages)
        languages.addObject(stringOf(language));
    return languages;
}

NS::Dictionary NSLocale_componentsFromLocaleIdentifier(id self, SEL command, NS::String identifier)
{
    const NS::MutableDictionary result = NS::MutableDictionary::make();
    if (!identifier)
        return result;
    const auto stock = ObjC::callImplementation<NS::Dictionary>(stockComponents, self, command, identifier);
    const NS::Array keys = stock.allKeys();
    for (unsigned long index = 0; index < keys.count(); ++index) {
        NS::String key = keys.at<NS::String>(index);
        const NS::Object value = stock.objectForKey<NS::Object>(key);
        for (const auto& name : keyNames) {
            if (key.utf8() == name.gnustep)
                key = stringOf(name.phone);
        }
        result.setObject(value, key);
    }
    return result;
}

NS::String NSLocale_localeIdentifierFromComponents(id self, SEL command, NS::Dictionary components)
{
    const NS::MutableDictionary stock = NS::MutableDictionary::make();
    for (const auto& name : keyNames) {
        for (const std::string_view key : {name.gnustep, name.phone}) {
            if (const auto value = components.objectForKey<NS::Object>(stringOf(key)))
                stock.setObject(value, stringOf(name.gnustep));
        }
    }
    return ObjC::callImplementation<NS::String>(stockIdentifier, self, command, stock);
}

/// A locale keeps its parts under the keys of componentsFromLocaleIdentifier:, and all else under GNUstep's own.
ObjC::Object NSLocale_objectForKey(id self, SEL command, NS::String key)
{
    const auto stock = [&](const NS::String& name) {
        return ObjC::callImplementation<ObjC::Object>(stockObjectForKey, self, command, name);
    };
    if (ObjC::Object value = key ? stock(key) : ObjC::Object())
        return value;
    for (const auto& name : keyNames) {
        if (key && key.utf8() == name.phone)
            return stock(stringOf(name.gnustep));
        if (key && key.utf8() == name.gnustep)
            return stock(stringOf(name.phone));
    }
    return nullptr;
}

IMP stockClassMethod(const char* selectorName)
{
    return method_getImplementation(class_getClassMethod(objc_getClass("NSLocale"), sel_registerName(selectorName)));
}

}

static const Mending nsLocale("NSLocale", [] {
    stockComponents = stockClassMethod("componentsFromLocaleIdentifier:");
    stockIdentifier = stockClassMethod("localeIdentifierFromComponents:");
    stockLocaleIdentifier
        = class_getMethodImplementation(objc_getClass("NSLocale"), sel_registerName("localeIdentifier"));
    stockObjectForKey = class_getMethodImplementation(objc_getClass("NSLocale"), sel_registerName("objectForKey:"));
    replaceClassMethod<NSLocale_currentLocale>("NSLocale", "currentLocale");
    replaceClassMethod<NSLocale_currentLocale>("NSLocale", "autoupdatingCurrentLocale");
    replaceClassMethod<NSLocale_canonicalIdentifier>("NSLocale", "canonicalLocaleIdentifierFromString:");
    replaceClassMethod<NSLocale_preferredLanguages>("NSLocale", "preferredLanguages");
    replaceClassMethod<NSLocale_componentsFromLocaleIdentifier>("NSLocale", "componentsFromLocaleIdentifier:");
    replaceClassMethod<NSLocale_localeIdentifierFromComponents>("NSLocale", "localeIdentifierFromComponents:");
    replaceInFamily<NSLocale_localeIdentifier>("NSLocale", "localeIdentifier");
    replaceInFamily<NSLocale_objectForKey>("NSLocale", "objectForKey:");
});

}
