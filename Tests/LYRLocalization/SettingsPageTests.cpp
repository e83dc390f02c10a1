// The settings pages against the table of settings: every cell shows a setting that exists, with its default.
#include "SettingsBundle.hpp"

#include "Platform/Foundation/NSNumber.hpp"
#include "Product/Choices.hpp"
#include "Product/Names.hpp"
#include "Product/Settings.hpp"

#include <algorithm>
#include <map>
#include <variant>

namespace LYR {
namespace {

using Default = std::variant<bool, std::string>;

/// The settings that something reads, with their defaults.
std::map<std::string, Default> settings()
{
    std::map<std::string, Default> table;
    for (const Product::Setting& setting : Product::settings) {
        if (!setting.isRead())
            continue;
        Default& fallback = table[std::string(setting.key)];
        if (setting.isFlag)
            fallback = setting.fallback == "true";
        else
            fallback = std::string(setting.fallback);
    }
    return table;
}

class SettingsPages : public SettingsBundle {
protected:
    static NS::Object value(const NS::Dictionary& cell, const char* key)
    {
        return cell.objectForKey<NS::Object>(Simulator::stringOf(key));
    }
    static Default defaultOf(const NS::Dictionary& cell)
    {
        if (value(cell, "default").is<NS::Number>())
            return value(cell, "default").as<NS::Number>().boolValue();
        return text(cell, "default");
    }
    static double number(const NS::Dictionary& cell, const char* key)
    {
        return value(cell, key).as<NS::Number>().doubleValue();
    }
    std::vector<NS::Dictionary> cells(const std::string& kind)
    {
        std::vector<NS::Dictionary> found;
        for (const NS::Dictionary& cell : allCells())
            if (text(cell, "cell") == kind)
                found.push_back(cell);
        return found;
    }
    static NS::Dictionary colourOf(const NS::Dictionary& holder)
    {
        return holder.objectForKey<NS::Dictionary>("libsparkcolourpicker"_ns);
    }
};

TEST_F(SettingsPages, ShowEverySettingOnceWithItsDefault)
{
    std::map<std::string, Default> shown;
    for (const NS::Dictionary& cell : allCells()) {
        const std::string key = text(cell, "key");
        if (key.empty())
            continue;
        EXPECT_TRUE(shown.emplace(key, defaultOf(cell)).second) << key << " is shown twice";
        EXPECT_EQ(text(cell, "defaults"), LYR_SETTINGS_STORE) << key;
        EXPECT_EQ(text(cell, "PostNotification"), LYR_SETTINGS_CHANGED) << key;
    }
    EXPECT_EQ(shown, settings());
}

TEST_F(SettingsPages, ShowEachSettingOnItsPageInItsCell)
{
    std::map<std::string, std::string> shown;
    for (const std::string& name : pageNames)
        for (const NS::Dictionary& cell : cellsOf(page(name)))
            if (!text(cell, "key").empty())
                shown[text(cell, "key")] = name + " " + text(cell, "cell");
    std::map<std::string, std::string> wanted;
    for (const Product::Setting& setting : Product::settings)
        if (setting.isRead())
            wanted[std::string(setting.key)] = std::string(setting.page) + " " + std::string(setting.cell);
    EXPECT_EQ(shown, wanted);
}

TEST_F(SettingsPages, UseACellThatFitsTheKindOfTheSetting)
{
    const std::set<std::string_view> kinds = {"PSLinkListCell", "PSSliderCell", "PSEditTextCell"};
    for (const Product::Setting& setting : Product::settings) {
        if (!setting.isRead())
            continue;
        EXPECT_EQ(setting.cell == "PSSwitchCell", setting.isFlag) << setting.key;
        EXPECT_EQ(kinds.contains(setting.cell), !setting.isFlag) << setting.key << " has a " << setting.cell;
    }
}

TEST_F(SettingsPages, HaveListsWithATitleForEachChoiceAndTheDefaultAmongThem)
{
    const auto lists = cells("PSLinkListCell");
    EXPECT_FALSE(lists.empty());
    for (const NS::Dictionary& cell : lists) {
        const auto values = list(cell, "validValues");
        EXPECT_EQ(list(cell, "validTitles").size(), values.size()) << text(cell, "key");
        EXPECT_EQ(std::ranges::count(values, text(cell, "default")), 1) << text(cell, "key");
        EXPECT_EQ(std::set(values.begin(), values.end()).size(), values.size()) << text(cell, "key");
        EXPECT_EQ(text(cell, "detail"), "PSListItemsController") << text(cell, "key");
    }
}

TEST_F(SettingsPages, OfferTheCodesThatTheLockScreenKnows)
{
    const std::map<std::string, std::vector<std::string>> codes = {{"customFont", {"1", "2", "3", "4", "5"}},
        {"colorTime", {"1", "2", "3", "4"}}, {"colorDate", {"1", "2", "3", "4"}}};
    std::map<std::string, std::vector<std::string>> offered;
    for (const NS::Dictionary& cell : cells("PSLinkListCell"))
        if (codes.contains(text(cell, "key")))
            offered[text(cell, "key")] = list(cell, "validValues");
    EXPECT_EQ(offered, codes);
}

TEST_F(SettingsPages, OfferEveryChoiceWithItsTitle)
{
    std::set<std::string_view> found;
    for (const NS::Dictionary& cell : cells("PSLinkListCell")) {
        const auto choices = Product::choicesOf(text(cell, "key"));
        std::vector<std::string> values, titles;
        for (const Product::Choice& choice : choices.choices) {
            values.push_back(std::to_string(choices.first + static_cast<int>(values.size())));
            titles.push_back(choice.pageTitle);
        }
        if (values.empty())
            continue;
        found.insert(choices.key);
        EXPECT_EQ(list(cell, "validValues"), values) << choices.key;
        EXPECT_EQ(list(cell, "validTitles"), titles) << choices.key;
    }
    EXPECT_EQ(found.size(), std::size(Product::choiceLists));
}

TEST_F(SettingsPages, HaveSlidersThatReachTheirDefault)
{
    const auto sliders = cells("PSSliderCell");
    EXPECT_FALSE(sliders.empty());
    for (const NS::Dictionary& cell : sliders) {
        const double start = cell.objectForKey<NS::String>("default"_ns).doubleValue();
        EXPECT_LT(number(cell, "min"), number(cell, "max")) << text(cell, "key");
        EXPECT_GE(start, number(cell, "min")) << text(cell, "key");
        EXPECT_LE(start, number(cell, "max")) << text(cell, "key");
        EXPECT_TRUE(value(cell, "showValue").as<NS::Number>().boolValue()) << text(cell, "key");
    }
}

TEST_F(SettingsPages, OfferEveryColourOfTheColourFile)
{
    std::set<std::string> keys;
    for (const NS::Dictionary& cell : allCells()) {
        auto colour = colourOf(cell);
        if (!colour)
            continue;
        keys.insert(text(colour, "key"));
        EXPECT_EQ(text(colour, "defaults"), LYR_COLOUR_STORE);
        EXPECT_EQ(text(colour, "fallback"), "#ffffff");
        EXPECT_EQ(text(colour, "PostNotification"), LYR_COLOURS_CHANGED);
        EXPECT_TRUE(value(colour, "alpha").as<NS::Number>().boolValue());
    }
    EXPECT_EQ(keys, std::set<std::string>(std::begin(Product::colourKeys), std::end(Product::colourKeys)));
}

TEST_F(SettingsPages, KeepAFallbackThatTheColourWellsCanReplace)
{
    for (const char* name : {"subTime", "subDate", "subWidget"})
        EXPECT_EQ(text(colourOf(page(name)), "fallback"), "#ffffff") << name;
}

TEST_F(SettingsPages, LinkToThePagesOfTheElements)
{
    std::vector<std::string> linked;
    for (const NS::Dictionary& cell : cells("PSLinkCell"))
        if (!text(cell, "id").empty())
            linked.push_back(text(cell, "id"));
    EXPECT_EQ(linked, std::vector<std::string>(pageNames.begin() + 1, pageNames.end()));
}

TEST_F(SettingsPages, HaveAButtonThatRestartsTheShell)
{
    const auto buttons = cells("PSButtonCell");
    ASSERT_EQ(buttons.size(), 1u);
    EXPECT_EQ(text(buttons[0], "PostNotification"), LYR_RESPRING);
}

}
}
