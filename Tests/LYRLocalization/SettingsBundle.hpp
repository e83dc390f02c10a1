// The settings bundle as it is delivered: pages of cells, and the texts of each language.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Product/Settings.hpp"
#include "Simulator/Base/HostFile.hpp"
#include "Tests/Foundation/FoundationTest.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <vector>

namespace LYR {

/// The languages of a folder, a file each.
inline std::vector<std::string> languagesOf(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".json")
            names.push_back(entry.path().stem());
    std::ranges::sort(names);
    return names;
}
inline const std::vector<std::string> languages = languagesOf(LYR_LANGUAGES);
inline const std::vector<std::string> pageNames(std::begin(Product::pages), std::end(Product::pages));

class SettingsBundle : public Simulator::FoundationTest {
protected:
    using Json = nlohmann::json;

    /// A file of the bundle as text; the JSON of a language by its name.
    static std::string read(const std::string& name)
    {
        return Simulator::readHostFile(LYR_SETTINGS_BUNDLE "/" + name).value;
    }
    static Json texts(const std::string& language) { return Json::parse(read(language + ".json")); }

    /// A page as the phone reads it.
    NS::Dictionary page(const std::string& name)
    {
        const std::string path = "/Library/" + name + ".plist";
        files.put(path, read(name + ".plist"));
        return NS::Dictionary::dictionaryWithContentsOfFile(Simulator::stringOf(path));
    }
    static std::vector<NS::Dictionary> cellsOf(const NS::Dictionary& page)
    {
        return elementsOf<NS::Dictionary>(page.objectForKey<NS::Array>("items"_ns));
    }
    std::vector<NS::Dictionary> allCells()
    {
        std::vector<NS::Dictionary> cells;
        for (const std::string& name : pageNames)
            for (const NS::Dictionary& cell : cellsOf(page(name)))
                cells.push_back(cell);
        return cells;
    }

    template <class T>
    static std::vector<T> elementsOf(const NS::Array& array)
    {
        std::vector<T> elements;
        for (unsigned long i = 0; i < array.count(); ++i)
            elements.push_back(array.at<T>(i));
        return elements;
    }
    static std::string text(const NS::Dictionary& cell, const char* key)
    {
        return Simulator::textOf(cell.objectForKey<NS::String>(Simulator::stringOf(key)));
    }
    static std::vector<std::string> list(const NS::Dictionary& cell, const char* key)
    {
        std::vector<std::string> result;
        for (const NS::String& element : elementsOf<NS::String>(cell.objectForKey<NS::Array>(Simulator::stringOf(key))))
            result.push_back(Simulator::textOf(element));
        return result;
    }
};

}
