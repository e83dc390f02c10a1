// The texts of the settings in the user's language, by key. They lie in the settings bundle, a JSON file a language.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"

namespace LYR {

class LYRLocalization : public ObjC::Class_<LYRLocalization, NS::Object, "LYRLocalization"> {
public:
    using Class_::Class_;

    /// The catalogue of the process, made when it is first asked for.
    static LYRLocalization sharedInstance() { return sendClass<LYRLocalization, "sharedInstance">(); }
    /// The text with the number in place of each `*`, in the digits of the language.
    static NS::String stringForKeyWithInt(const NS::String& key, int number)
    {
        return sendClass<NS::String, "stringForKey:withInt:">(key, number);
    }
    static NS::String stringForKeyWithLong(const NS::String& key, long number)
    {
        return sendClass<NS::String, "stringForKey:withLong:">(key, number);
    }

    /// The text of that key; "Transl. Err" if there is none.
    NS::String stringForKey(const NS::String& key) const { return send<NS::String, "stringForKey:">(key); }
    /// Lays one file over the texts that are there; a file that does not exist changes nothing.
    void loadTranslations(const NS::String& name) const { send<void, "loadTranslations:">(name); }
    /// Lays texts over those that are there.
    void overwriteTranslations(const NS::Dictionary& texts) const { send<void, "overwriteTranslations:">(texts); }
    /// The name of the file that was loaded last.
    NS::String getLanguage() const { return send<NS::String, "getLanguage">(); }
    void setLanguage(const NS::String& name) const { send<void, "setLanguage:">(name); }
    NS::MutableDictionary translations() const { return send<NS::MutableDictionary, "translations">(); }
    void setTranslations(const NS::MutableDictionary& texts) const { send<void, "setTranslations:">(texts); }
};

/// Makes `LYRLocalization` known to the runtime. Once is enough, again does no harm.
void registerLYRLocalization();

}
