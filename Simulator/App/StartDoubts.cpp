// Looks at the files of a start with the phone's eyes.
#include "Simulator/App/StartDoubts.hpp"

#include "Simulator/Control/PropertyList.hpp"
#include "Simulator/Graphics/FontCatalogue.hpp"
#include "Simulator/Graphics/Image.hpp"
#include "Simulator/Preview/Look.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <span>

namespace Simulator::App {

using namespace Control;

namespace {

std::vector<std::string> keysIn(const std::string& path)
{
    const std::string bytes = bytesOf(path);
    if (auto keys = propertyListKeys(bytes))
        return *keys;
    const Json values = jsonOf(path, bytes);
    std::vector<std::string> keys;
    for (const auto& [key, value] : values.items())
        keys.push_back(key);
    return keys;
}

/// Empty where every key is known.
std::string doubtAboutKeys(const std::string& path, const char* what, const std::vector<std::string>& known)
{
    constexpr std::size_t mostNamed = 5;
    std::string names;
    std::size_t count = 0;
    for (const std::string& key : keysIn(path)) {
        if (std::find(known.begin(), known.end(), key) == known.end() && ++count <= mostNamed)
            names += (names.empty() ? "" : ", ") + quote(key);
    }
    if (count > mostNamed)
        names += " and " + std::to_string(count - mostNamed) + " more";
    if (count == 0)
        return {};
    return path + ": unknown " + what + (count > 1 ? "s " : " ") + names + ", which the extension does not read";
}

bool isPicture(const std::string& bytes)
{
    const auto data = std::as_bytes(std::span(bytes));
    const auto image = Graphics::Image::fromBytes({data.begin(), data.end()});
    std::array<std::uint8_t, 4> pixel{};
    return image && image->drawInto({pixel.data(), 1, 1, static_cast<int>(pixel.size())});
}

bool isFont(const std::string& path)
{
    if (std::filesystem::is_empty(path))
        return false;
    const std::string bytes = bytesOf(path);
    return Graphics::FontCatalogue::namesOf(std::as_bytes(std::span(bytes))).has_value();
}

std::vector<std::string> doubtsAbout(const StartOptions& options)
{
    std::vector<std::string> doubts;
    if (!options.settings.empty())
        doubts.push_back(doubtAboutKeys(options.settings, "setting", Preview::lookSettings()));
    if (!options.colours.empty())
        doubts.push_back(doubtAboutKeys(options.colours, "colour", Preview::lookColours()));
    if (!options.wallpaper.empty() && !isPicture(bytesOf(options.wallpaper)))
        doubts.push_back(options.wallpaper + ": the picture is damaged; the phone cannot show it");
    for (const std::string& font : options.fonts) {
        // One that is not there is refused at the start.
        if (std::filesystem::is_regular_file(font) && !isFont(font))
            doubts.push_back(font + ": no font, or a damaged one; the phone leaves it out");
    }
    std::erase(doubts, "");
    return doubts;
}

}

void sayDoubts(const StartOptions& options)
{
    for (const std::string& doubt : doubtsAbout(options)) {
        if (options.isStrict)
            throw Failure(doubt);
        std::cerr << "lyr: " << doubt << std::endl;
    }
}

}
