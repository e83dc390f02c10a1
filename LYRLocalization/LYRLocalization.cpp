// English first, the user's language over it, and the language as written in the user's script over that.
#include "LYRLocalization/LYRLocalization.hpp"

#include "Platform/Foundation/Dispatch.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSBundle.hpp"
#include "Platform/Foundation/NSJSONSerialization.hpp"
#include "Platform/Foundation/NSLocale.hpp"
#include "Platform/ObjC/Method.hpp"
#include "Product/Names.hpp"

#include <string_view>

namespace LYR {

namespace {

struct Digit {
    std::string_view western;
    std::string_view arabicIndic;
};
constexpr Digit digits[] = {{"0", "٠"}, {"1", "١"}, {"2", "٢"}, {"3", "٣"}, {"4", "٤"}, {"5", "٥"}, {"6", "٦"},
    {"7", "٧"}, {"8", "٨"}, {"9", "٩"}};

constexpr const char* languageVariable = "_language";
constexpr const char* translationsVariable = "_translations";

NS::String language(id self, SEL)
{
    return ObjC::ownedVariable<NS::String>(self, languageVariable);
}

void setLanguage(id self, SEL, ObjC::Object name)
{
    ObjC::setOwnedVariable(self, languageVariable, name.as<NS::String>());
}

NS::MutableDictionary translations(id self, SEL)
{
    return ObjC::ownedVariable<NS::MutableDictionary>(self, translationsVariable);
}

void setTranslations(id self, SEL, ObjC::Object texts)
{
    // A dictionary that cannot be changed may be of the other class all the same.
    ObjC::setOwnedVariable(self, translationsVariable, texts.as<NS::Dictionary>().mutableCopy());
}

void loadLayers(const LYRLocalization& catalogue)
{
    catalogue.loadTranslations("en"_ns);
    auto identifier = NS::Locale::preferredLanguages().firstObject<NS::String>();
    auto parts = identifier ? NS::Locale::componentsFromLocaleIdentifier(identifier) : NS::Dictionary();
    auto code = parts.objectForKey<NS::String>("kCFLocaleLanguageCodeKey"_ns);
    if (!code || code.isEqualToString("en"_ns))
        return;
    catalogue.loadTranslations(code);
    // Without a script there is no file that could be meant.
    if (auto script = parts.objectForKey<NS::String>("kCFLocaleScriptCodeKey"_ns))
        catalogue.loadTranslations(
            code.stringByAppendingString("-"_ns).stringByAppendingString(script).lowercaseString());
}

id init(id self, SEL command)
{
    self = ObjC::callImplementation<id>(ObjC::inheritedImplementation<NS::Object>(command), self, command);
    if (!self)
        return nullptr;
    ObjC::setOwnedVariable(self, translationsVariable, NS::MutableDictionary::dictionary());
    loadLayers(LYRLocalization(self));
    return self;
}

void dealloc(id self, SEL command)
{
    ObjC::setOwnedVariable(self, languageVariable, nullptr);
    ObjC::setOwnedVariable(self, translationsVariable, nullptr);
    ObjC::callImplementation<void>(ObjC::inheritedImplementation<NS::Object>(command), self, command);
}

void loadTranslations(LYRLocalization self, SEL, ObjC::Object file)
{
    // A bundle that is asked for no name in particular answers with any file.
    auto name = file.as<NS::String>();
    if (name.length() == 0)
        return;
    auto bundle = NS::Bundle::bundleWithPath(LYR_PREFIX LYR_SETTINGS_PAGES ""_ns);
    auto url = bundle.URLForResource(name, "json"_ns);
    auto data = url ? NS::Data::dataWithContentsOfURL(url) : NS::Data();
    if (!data)
        return;
    self.setLanguage(name);
    self.overwriteTranslations(NS::JSONSerialization::JSONObjectWithData(data).as<NS::Dictionary>());
}

void overwriteTranslations(LYRLocalization self, SEL, ObjC::Object layer)
{
    auto texts = layer.as<NS::Dictionary>();
    auto keys = texts.allKeys();
    auto merged = self.translations();
    for (unsigned long i = 0; i < keys.count(); ++i) {
        auto key = keys.at<NS::String>(i);
        auto text = texts.objectForKey<NS::String>(key);
        if (key && text)
            merged.setObject(text, key);
    }
}

NS::String stringForKey(LYRLocalization self, SEL, ObjC::Object name)
{
    auto key = name.as<NS::String>();
    auto text = key ? self.translations().objectForKey<NS::String>(key) : NS::String();
    return text ? text : "Transl. Err"_ns;
}

LYRLocalization sharedInstance(ObjC::Object, SEL)
{
    static constinit ObjC::Variable<LYRLocalization> shared;
    static constinit dispatch_once_t once = 0;
    dispatch_once_f(&once, nullptr, [](void*) { shared = LYRLocalization::make(); });
    return shared;
}

NS::String sharedStringForKey(ObjC::Object, SEL, ObjC::Object key)
{
    return LYRLocalization::sharedInstance().send<NS::String, "stringForKey:">(key);
}

NS::String inArabicDigits(NS::String text)
{
    for (const Digit& digit : digits)
        text = text.stringByReplacingOccurrencesOfString(
            NS::String::fromUTF8(digit.western), NS::String::fromUTF8(digit.arabicIndic));
    return text;
}

template <class Number>
NS::String sharedStringWithNumber(ObjC::Object, SEL, ObjC::Object key, Number number)
{
    auto catalogue = LYRLocalization::sharedInstance();
    auto text = catalogue.send<NS::String, "stringForKey:">(key).stringByReplacingOccurrencesOfString(
        "*"_ns, NS::String::fromInteger(number));
    return catalogue.getLanguage().isEqualToString("ar"_ns) ? inArabicDigits(text) : text;
}

}

void registerLYRLocalization()
{
    ObjC::ClassBuilder::of<LYRLocalization>(NS::Object::type())
        .ivar<id>(languageVariable)
        .ivar<id>(translationsVariable)
        .classMethod<"sharedInstance", &sharedInstance>()
        .classMethod<"stringForKey:", &sharedStringForKey>()
        .classMethod<"stringForKey:withInt:", &sharedStringWithNumber<int>>()
        .classMethod<"stringForKey:withLong:", &sharedStringWithNumber<long>>()
        .method<"init", &init>()
        .method<"loadTranslations:", &loadTranslations>()
        .method<"overwriteTranslations:", &overwriteTranslations>()
        .method<"stringForKey:", &stringForKey>()
        .method<"getLanguage", &language>()
        .method<"language", &language>()
        .method<"setLanguage:", &setLanguage>()
        .method<"translations", &translations>()
        .method<"setTranslations:", &setTranslations>()
        .method<"dealloc", &dealloc>()
        .build();
}

}
