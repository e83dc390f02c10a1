// Writes the texts of the languages, which stand in one source each, to where they are read.
//     write-texts MEMBER SOURCE OUTPUT     one member of a source: the texts of the settings pages or of the preview
//     write-texts --list OUTPUT SOURCE…    what the preview's page knows of every language before it has its texts
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <span>
#include <stdexcept>

using Json = nlohmann::ordered_json;

static Json read(const std::string& source)
{
    std::ifstream file(source);
    if (!file)
        throw std::runtime_error("cannot read " + source);
    try {
        return Json::parse(file);
    } catch (const Json::exception& error) {
        throw std::runtime_error(source + ": " + error.what());
    }
}

static const Json& member(const Json& language, const std::string& name, const std::string& source)
{
    auto found = language.find(name);
    if (found == language.end())
        throw std::runtime_error(source + " has no member \"" + name + "\"");
    return *found;
}

static void write(const std::string& output, const Json& json)
{
    std::ofstream file(output);
    if (!(file << json.dump(4) << '\n'))
        throw std::runtime_error("cannot write " + output);
}

static Json listOf(std::span<char*> sources)
{
    Json list = Json::array();
    for (const std::string source : sources) {
        const Json language = read(source);
        list.push_back({{"name", std::filesystem::path(source).stem().string()},
            {"identifier", member(language, "identifier", source)},
            {"writtenFromRight", member(language, "writtenFromRight", source)}});
    }
    return list;
}

int main(int count, char** arguments)
{
    const std::span words(arguments, static_cast<std::size_t>(count));
    try {
        if (count > 3 && words[1] == std::string("--list"))
            write(words[2], listOf(words.subspan(3)));
        else if (count == 4)
            write(words[3], member(read(words[2]), words[1], words[2]));
        else
            throw std::runtime_error("expected MEMBER SOURCE OUTPUT, or --list OUTPUT SOURCE…");
    } catch (const std::exception& error) {
        std::cerr << "write-texts: " << error.what() << '\n';
        return 2;
    }
}
