// Alters font files as bytes: big-endian tables behind a directory.
#include "SampleFonts.hpp"
#include "Simulator/Base/HostFile.hpp"

#include <cstdint>
#include <fstream>
#include <string>

namespace Simulator::Graphics::Samples {

const std::filesystem::path latoBlack = "/usr/share/fonts/truetype/lato/Lato-Black.ttf";
const std::filesystem::path latoHairline = "/usr/share/fonts/truetype/lato/Lato-Hairline.ttf";
const std::filesystem::path quicksand = "/usr/share/fonts/truetype/quicksand/Quicksand-Light.ttf";

namespace {

std::uint32_t number(std::span<const std::byte> bytes, std::size_t offset, std::size_t length)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < length; ++i)
        value = value << 8 | std::to_integer<std::uint32_t>(bytes[offset + i]);
    return value;
}

void setNumber(std::span<std::byte> bytes, std::size_t offset, std::uint32_t value, std::size_t length)
{
    for (std::size_t i = length; i-- > 0; value >>= 8)
        bytes[offset + i] = std::byte(value & 0xFF);
}

std::string wide(std::string_view text)
{
    std::string bytes;
    for (const char character : text) {
        bytes += '\0';
        bytes += character;
    }
    return bytes;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

}

FontCatalogue& systemCatalogue()
{
    static FontCatalogue catalogue(installedSystemFonts());
    return catalogue;
}

Bytes read(const std::filesystem::path& path)
{
    const auto content = readHostFile(path);
    const auto bytes = std::as_bytes(std::span(content.value));
    return {bytes.begin(), bytes.end()};
}

Bytes renamed(Bytes font, std::string_view from, std::string_view to)
{
    std::string text(reinterpret_cast<const char*>(font.data()), font.size());
    replaceAll(text, from, to);
    replaceAll(text, wide(from), wide(to));
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

Bytes withoutCapitalHeight(Bytes font)
{
    const std::size_t tables = number(font, 4, 2);
    for (std::size_t i = 0; i < tables; ++i) {
        const std::size_t entry = 12 + i * 16;
        constexpr std::uint32_t metricsTable = 0x4F532F32;
        if (number(font, entry, 4) == metricsTable)
            setNumber(font, number(font, entry + 8, 4), 1, 2);
    }
    return font;
}

Bytes collection(std::span<const Bytes> fonts)
{
    constexpr char tag[] = {'t', 't', 'c', 'f', 0, 1, 0, 0};
    Bytes out(12 + fonts.size() * 4);
    for (std::size_t i = 0; i < sizeof tag; ++i)
        out[i] = std::byte(tag[i]);
    setNumber(out, 8, static_cast<std::uint32_t>(fonts.size()), 4);
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        const auto start = static_cast<std::uint32_t>(out.size());
        setNumber(out, 12 + i * 4, start, 4);
        Bytes font = fonts[i];
        const std::size_t tables = number(font, 4, 2);
        for (std::size_t table = 0; table < tables; ++table) {
            const std::size_t entry = 12 + table * 16 + 8;
            setNumber(font, entry, number(font, entry, 4) + start, 4);
        }
        out.insert(out.end(), font.begin(), font.end());
    }
    return out;
}

std::filesystem::path TemporaryFolder::write(std::string_view name, std::span<const std::byte> bytes) const
{
    const auto file = path() / name;
    std::ofstream(file, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return file;
}

}
