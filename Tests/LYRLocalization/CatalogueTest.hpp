// A phone whose settings bundle holds just what a test puts there.
#pragma once

#include "LYRLocalization/LYRLocalization.hpp"
#include "Tests/Foundation/FoundationTest.hpp"

#include <map>
#include <vector>

namespace LYR {

inline constexpr const char* missingText = "Transl. Err";

class CatalogueTest : public Simulator::FoundationTest {
protected:
    CatalogueTest()
    {
        registerLYRLocalization();
        files.createFolder(bundle, true);
    }

    void putFile(const std::string& name, const std::string& json)
    {
        ASSERT_EQ(files.put(bundle + name + ".json", json), 0);
    }
    /// A catalogue as the user of these languages gets it.
    static LYRLocalization catalogueFor(const std::vector<std::string>& languages)
    {
        Simulator::PhoneLocale::shared().languages = languages;
        return LYRLocalization::make();
    }
    static std::string textOf(const NS::String& text) { return Simulator::textOf(text); }
    static NS::String stringOf(const std::string& text) { return Simulator::stringOf(text); }
    static std::string textFor(const LYRLocalization& catalogue, const std::string& key)
    {
        return textOf(catalogue.stringForKey(stringOf(key)));
    }
    /// The shared catalogue of the process speaks this language with these texts from now on.
    static LYRLocalization sharing(const std::string& language, const std::map<std::string, std::string>& texts)
    {
        auto shared = LYRLocalization::sharedInstance();
        auto dictionary = NS::MutableDictionary::dictionary();
        for (const auto& [key, text] : texts)
            dictionary.setObject(stringOf(text), stringOf(key));
        shared.setTranslations(dictionary);
        shared.setLanguage(stringOf(language));
        return shared;
    }

    const std::string bundle = "/Library/PreferenceBundles/LYRPrefs.bundle/";
};

}
