// Reading and writing of PNG files by libpng alone.
#include "Benchmarks/Icons.hpp"

#include <cstdint>
#include <png.h>

namespace Benchmarks {

namespace {

std::vector<std::uint8_t> decoded(const std::vector<std::byte>& file, png_image& image)
{
    image = {};
    image.version = PNG_IMAGE_VERSION;
    std::vector<std::uint8_t> pixels;
    if (png_image_begin_read_from_memory(&image, file.data(), file.size())) {
        image.format = PNG_FORMAT_BGRA;
        pixels.resize(PNG_IMAGE_SIZE(image));
        png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
    }
    return pixels;
}

}

std::size_t passThroughPng(const std::vector<std::byte>& file)
{
    png_image image;
    const auto pixels = decoded(file, image);
    image.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::vector<std::byte> bytes(size);
    if (pixels.empty() || !png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, nullptr))
        return 0;
    bytes.resize(size);
    return decoded(bytes, image).empty() ? 0 : size;
}

}
