// The texts of every language against each other and against the settings pages.
#include "SettingsBundle.hpp"

#include <algorithm>

namespace LYR {
namespace {

class TranslationFiles : public SettingsBundle {
protected:
    static std::set<std::string> keysOf(const Json& texts)
    {
        std::set<std::string> keys;
        for (const auto& [key, value] : texts.items())
            keys.insert(key);
        return keys;
    }
    /// Every key that a page asks for.
    std::set<std::string> labels()
    {
        std::set<std::string> found;
        for (const std::string& name : pageNames)
            found.insert(text(page(name), "title"));
        for (const NS::Dictionary& cell : allCells()) {
            found.merge(std::set<std::string>{text(cell, "label"), text(cell, "footerText")});
            for (const std::string& title : list(cell, "validTitles"))
                found.insert(title);
        }
        found.erase("");
        return found;
    }
};

TEST_F(TranslationFiles, AreThoseOfTheLanguages)
{
    EXPECT_GE(languages.size(), 12u);
    EXPECT_EQ(languagesOf(LYR_SETTINGS_BUNDLE), languages);
}

TEST_F(TranslationFiles, HaveTheSameKeysInEveryLanguage)
{
    for (const std::string& language : languages)
        EXPECT_EQ(keysOf(texts(language)), keysOf(texts("en"))) << language;
}

TEST_F(TranslationFiles, HaveATextForEveryLabelAndNoneBeside)
{
    EXPECT_EQ(keysOf(texts("en")), labels());
}

TEST_F(TranslationFiles, HoldTextsAndNoEmptyOnes)
{
    for (const std::string& language : languages) {
        const Json translated = texts(language);
        for (const auto& [key, value] : translated.items()) {
            ASSERT_TRUE(value.is_string()) << language << " " << key;
            EXPECT_FALSE(value.get<std::string>().empty()) << language << " " << key;
        }
    }
}

TEST_F(TranslationFiles, PutTheNumberWhereEnglishHasOne)
{
    const Json english = texts("en");
    for (const std::string& language : languages) {
        const Json translated = texts(language);
        for (const auto& [key, value] : translated.items())
            EXPECT_EQ(std::ranges::count(value.get<std::string>(), '*'),
                std::ranges::count(english.at(key).get<std::string>(), '*'))
                << language << " " << key;
    }
}

TEST_F(TranslationFiles, AreTranslated)
{
    // Some words are the same in two languages, but not many.
    const Json english = texts("en");
    for (const std::string& language : languages) {
        if (language == "en")
            continue;
        const Json translated = texts(language);
        std::size_t same = 0;
        for (const auto& [key, value] : translated.items())
            same += value == english.at(key);
        EXPECT_LT(same, 8u) << language;
    }
}

}
}
