// The picture as others handle it.
#include "Simulator/Graphics/Image.hpp"

#include "Simulator/Graphics/FontFile.hpp"
#include "Simulator/Graphics/ImageSource.hpp"
#include "Simulator/Graphics/PngWriter.hpp"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>

namespace Simulator::Graphics {

namespace {

constexpr std::size_t fileLimit = 512u << 20;

std::uint64_t nextIdentity()
{
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

Image::Pointer imageFrom(std::shared_ptr<const ImageSource> source)
{
    if (!source)
        return nullptr;
    const Size size = source->naturalSize();
    return std::make_shared<const Image>(std::move(source), size, nextIdentity());
}

bool beginsWith(const std::vector<std::byte>& bytes, std::initializer_list<unsigned> signature)
{
    return bytes.size() >= signature.size()
        && std::equal(signature.begin(), signature.end(), bytes.begin(),
            [](unsigned wanted, std::byte found) { return std::byte(wanted) == found; });
}

void copyToBuffer(const Pixels& pixels, const PixelBuffer& buffer)
{
    for (int y = 0; y < buffer.height; ++y) {
        const std::uint8_t* from = pixels.row(y);
        std::uint8_t* to = buffer.pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(buffer.stride);
        for (int x = 0; x < buffer.width; ++x, from += 4, to += 4) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
            to[3] = from[3];
        }
    }
}

}

Image::Image(std::shared_ptr<const ImageSource> source, Size size, std::uint64_t identity)
    : m_source(std::move(source))
    , m_size(size)
    , m_identity(identity)
{
}

Image::Pointer Image::resized(Size size) const
{
    return std::make_shared<const Image>(m_source, size, m_identity);
}

Image::Pointer Image::fromBytes(std::vector<std::byte> bytes)
{
    if (beginsWith(bytes, {0xFF, 0xD8, 0xFF}))
        return imageFrom(openJpeg(std::move(bytes)));
    if (beginsWith(bytes, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}))
        return imageFrom(openPng(std::move(bytes)));
    return nullptr;
}

Image::Pointer Image::fromFile(const std::filesystem::path& path)
{
    return fromBytes(readFile(path, fileLimit));
}

Image::Pointer Image::fromSvg(std::vector<std::byte> bytes, Size size)
{
    auto source = openSvg(std::move(bytes));
    if (!source)
        return nullptr;
    const bool hasSize = size.width > 0 && size.height > 0 && std::isfinite(size.width) && std::isfinite(size.height);
    const Size chosen = hasSize ? size : source->naturalSize();
    return std::make_shared<const Image>(std::move(source), chosen, nextIdentity());
}

Image::Pointer Image::fromPixels(const std::uint8_t* pixels, int width, int height, int stride)
{
    return imageFrom(copyPixels(pixels, width, height, stride));
}

Size Image::storedSize() const
{
    const PixelSize size = m_source->storedSize();
    return {double(size.width), double(size.height)};
}

Orientation Image::orientation() const
{
    return m_source->orientation();
}

bool Image::isDrawing() const
{
    return m_source->isDrawing();
}

std::span<const std::byte> Image::encodedBytes() const
{
    return m_source->encodedBytes();
}

bool Image::drawInto(const PixelBuffer& buffer, bool upright) const
{
    if (!buffer.pixels || buffer.width <= 0 || buffer.height <= 0 || buffer.stride / 4 < buffer.width)
        return false;
    const PixelRect all = {0, 0, buffer.width, buffer.height};
    const Pixels pixels = scaledPixels(*m_source, {buffer.width, buffer.height}, all, upright);
    if (!pixels.isEmpty()) {
        copyToBuffer(pixels, buffer);
        return true;
    }
    for (int y = 0; y < buffer.height; ++y)
        std::memset(buffer.pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(buffer.stride), 0,
            static_cast<std::size_t>(buffer.width) * 4);
    return false;
}

std::vector<std::byte> Image::encodePng() const
{
    const Size natural = {std::ceil(m_size.width), std::ceil(m_size.height)};
    if (natural.width > 65'535 || natural.height > 65'535)
        return {};
    const PixelSize size = {static_cast<int>(natural.width), static_cast<int>(natural.height)};
    const Pixels pixels = scaledPixels(*m_source, size, {0, 0, size.width, size.height}, true);
    if (pixels.isEmpty())
        return {};
    return Graphics::encodePng({pixels.bytes.data(), size.width, size.height, pixels.stride()}, m_source->isOpaque());
}

}
