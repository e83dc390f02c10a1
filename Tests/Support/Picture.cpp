// Reads, writes and compares PNG files.
#include "Tests/Support/Picture.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <png.h>
#include <zlib.h>

namespace Support {

namespace {

constexpr std::size_t channels = 3;

bool differ(const std::uint8_t* a, const std::uint8_t* b, const PictureTolerance& tolerance)
{
    for (std::size_t i = 0; i < channels; ++i) {
        if (std::abs(a[i] - b[i]) > tolerance.channel)
            return true;
    }
    return false;
}

bool sameSize(const Picture& a, const Picture& b)
{
    return a.width == b.width && a.height == b.height;
}

std::size_t pixelCount(const Picture& picture)
{
    return std::size_t{picture.width} * picture.height;
}

}

std::optional<Picture> Picture::read(const std::string& path)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path.c_str()))
        return std::nullopt;
    image.format = PNG_FORMAT_RGB;
    Picture picture{image.width, image.height, std::vector<std::uint8_t>(PNG_IMAGE_SIZE(image))};
    const png_color black{};
    if (!png_image_finish_read(&image, &black, picture.pixels.data(), 0, nullptr))
        return std::nullopt;
    return picture;
}

bool Picture::write(const std::string& path) const
{
    FILE* file = std::fopen(path.c_str(), "wb");
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(writer);
    bool written = false;
    // An error jumps back here.
    if (file && !setjmp(png_jmpbuf(writer))) {
        png_init_io(writer, file);
        png_set_IHDR(writer, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
            PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_compression_level(writer, Z_BEST_COMPRESSION);
        png_write_info(writer, info);
        for (std::size_t row = 0; row < height; ++row)
            png_write_row(writer, pixels.data() + row * width * channels);
        png_write_end(writer, nullptr);
        written = true;
    }
    png_destroy_write_struct(&writer, &info);
    return file && std::fclose(file) == 0 && written;
}

Picture Picture::rows(unsigned first, unsigned count) const
{
    const unsigned begin = std::min(first, height), end = begin + std::min(count, height - begin);
    const std::size_t row = std::size_t{width} * channels;
    return {width, end - begin,
        {pixels.begin() + static_cast<long>(begin * row), pixels.begin() + static_cast<long>(end * row)}};
}

double differingShare(const Picture& a, const Picture& b, const PictureTolerance& tolerance)
{
    if (!sameSize(a, b))
        return 1;
    std::size_t count = 0;
    for (std::size_t i = 0; i < a.pixels.size(); i += channels)
        count += differ(&a.pixels[i], &b.pixels[i], tolerance);
    return static_cast<double>(count) / static_cast<double>(std::max<std::size_t>(pixelCount(a), 1));
}

Picture differences(const Picture& a, const Picture& b, const PictureTolerance& tolerance)
{
    Picture marked{a.width, a.height, std::vector<std::uint8_t>(a.pixels.size(), 255)};
    for (std::size_t i = 0; sameSize(a, b) && i < a.pixels.size(); i += channels) {
        if (!differ(&a.pixels[i], &b.pixels[i], tolerance))
            std::fill_n(&marked.pixels[i], channels, 0);
    }
    return marked;
}

}
