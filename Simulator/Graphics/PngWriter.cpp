// PNG by libpng, tuned for speed: a frame is looked at once and thrown away.
#include "Simulator/Graphics/PngWriter.hpp"

#include <png.h>

#include <csetjmp>

namespace Simulator::Graphics {

namespace {

[[noreturn]] void onError(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) { }

void append(png_structp png, png_bytep bytes, std::size_t length)
{
    auto& out = *static_cast<std::vector<std::byte>*>(png_get_io_ptr(png));
    const auto* first = reinterpret_cast<const std::byte*>(bytes);
    out.insert(out.end(), first, first + length);
}

void flush(png_structp) { }

std::uint8_t straight(unsigned component, unsigned alpha)
{
    return static_cast<std::uint8_t>((component * 255 + alpha / 2) / alpha);
}

void convertRow(const std::uint8_t* from, int width, bool isOpaque, std::uint8_t* to)
{
    for (int x = 0; x < width; ++x, from += 4) {
        const unsigned alpha = isOpaque ? 255 : from[3];
        for (const int channel : {2, 1, 0})
            *to++ = alpha == 0 ? 0 : alpha == 255 ? from[channel] : straight(from[channel], alpha);
        if (!isOpaque)
            *to++ = static_cast<std::uint8_t>(alpha);
    }
}

struct Writer {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    Writer() = default;
    ~Writer() { png_destroy_write_struct(&png, &info); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
};

}

std::vector<std::byte> encodePng(const FrameView& pixels, bool isOpaque)
{
    std::vector<std::byte> out;
    if (!pixels.pixels || pixels.width <= 0 || pixels.height <= 0)
        return out;
    std::vector<std::uint8_t> row(static_cast<std::size_t>(pixels.width) * 4);
    Writer writer;
    if (!writer.info)
        return out;
    if (setjmp(png_jmpbuf(writer.png)))
        return {};
    png_set_write_fn(writer.png, &out, append, flush);
    png_set_user_limits(writer.png, 0x7FFFFFFF, 0x7FFFFFFF);
    png_set_compression_level(writer.png, 1);
    png_set_filter(writer.png, 0, PNG_FILTER_UP);
    png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(pixels.width),
        static_cast<png_uint_32>(pixels.height), 8, isOpaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA,
        PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer.png, writer.info);
    for (int y = 0; y < pixels.height; ++y) {
        convertRow(pixels.pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(pixels.stride), pixels.width,
            isOpaque, row.data());
        png_write_row(writer.png, row.data());
    }
    png_write_end(writer.png, nullptr);
    return out;
}

}
