// Encodes sample pictures by the libraries that also decode them.
#include "SamplePictures.hpp"

#include <png.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

extern "C" {
#include <jpeglib.h>
}

namespace Simulator::Graphics::Samples {

namespace {

/// The camera's block with nothing but the orientation, its numbers with the low byte first.
void writeOrientation(jpeg_compress_struct& encoder, int orientation)
{
    unsigned char block[] = {'E', 'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0, 0x12, 0x01, 3, 0, 1, 0, 0, 0,
        static_cast<unsigned char>(orientation), 0, 0, 0, 0, 0, 0, 0};
    jpeg_write_marker(&encoder, JPEG_APP0 + 1, block, sizeof block);
}

void writeSamples(const Rgba& color, const JpegOptions& options, std::vector<unsigned char>& row)
{
    if (options.isGrey) {
        row.push_back(color.r);
    } else if (options.hasFourInks) {
        const auto ink = [](int value) { return static_cast<unsigned char>(value); };
        row.insert(row.end(), {ink(color.r), ink(color.g), ink(color.b), 255});
    } else {
        row.insert(row.end(), {color.r, color.g, color.b});
    }
}

std::vector<std::byte> toBytes(const unsigned char* data, std::size_t size)
{
    const auto* first = reinterpret_cast<const std::byte*>(data);
    return {first, first + size};
}

void append(png_structp png, png_bytep data, std::size_t length)
{
    auto& out = *static_cast<std::vector<std::byte>*>(png_get_io_ptr(png));
    const auto bytes = toBytes(data, length);
    out.insert(out.end(), bytes.begin(), bytes.end());
}

}

std::vector<std::byte> jpeg(int width, int height, const Paint& paint, const JpegOptions& options)
{
    jpeg_compress_struct encoder;
    jpeg_error_mgr errors;
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&encoder, &data, &size);
    encoder.image_width = static_cast<JDIMENSION>(width);
    encoder.image_height = static_cast<JDIMENSION>(height);
    encoder.input_components = options.isGrey ? 1 : options.hasFourInks ? 4 : 3;
    encoder.in_color_space = options.isGrey ? JCS_GRAYSCALE : options.hasFourInks ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, 95, TRUE);
    if (options.isProgressive)
        jpeg_simple_progression(&encoder);
    jpeg_start_compress(&encoder, TRUE);
    if (options.orientation != 0)
        writeOrientation(encoder, options.orientation);
    for (int y = 0; y < height; ++y) {
        std::vector<unsigned char> row;
        for (int x = 0; x < width; ++x)
            writeSamples(paint(x, y), options, row);
        unsigned char* line = row.data();
        jpeg_write_scanlines(&encoder, &line, 1);
    }
    jpeg_finish_compress(&encoder);
    auto bytes = toBytes(data, size);
    jpeg_destroy_compress(&encoder);
    std::free(data);
    return bytes;
}

std::vector<std::byte> png(int width, int height, const Paint& paint, const PngOptions& options)
{
    std::vector<std::byte> out;
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(writer);
    png_set_write_fn(writer, &out, append, nullptr);
    png_set_IHDR(writer, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), options.bitDepth,
        PNG_COLOR_TYPE_RGB_ALPHA, options.isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
        PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer, info);
    std::vector<std::vector<unsigned char>> rows(static_cast<std::size_t>(height));
    std::vector<unsigned char*> lines;
    for (int y = 0; y < height; ++y) {
        auto& row = rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < width; ++x) {
            const Rgba color = paint(x, y);
            for (const unsigned char component : {color.r, color.g, color.b, color.a})
                row.insert(row.end(), options.bitDepth == 16 ? 2u : 1u, component);
        }
        lines.push_back(row.data());
    }
    png_write_image(writer, lines.data());
    png_write_end(writer, nullptr);
    png_destroy_write_struct(&writer, &info);
    return out;
}

Paint plain(Rgba color)
{
    return [color](int, int) { return color; };
}

Paint quarters(int width, int height)
{
    return [=](int x, int y) {
        if (y < height / 2)
            return x < width / 2 ? Rgba{255, 0, 0} : Rgba{0, 255, 0};
        return x < width / 2 ? Rgba{0, 0, 255} : Rgba{255, 255, 255};
    };
}

Canvas::Canvas(int canvasWidth, int canvasHeight)
    : width(canvasWidth)
    , height(canvasHeight)
    , bytes(static_cast<std::size_t>(canvasWidth * canvasHeight * 4), 0xAA)
{
}

PixelBuffer Canvas::buffer()
{
    return {bytes.data(), width, height, width * 4};
}

Rgba Canvas::at(int x, int y) const
{
    const std::uint8_t* pixel = bytes.data() + (y * width + x) * 4;
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
}

bool Canvas::isBlank() const
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
}

Canvas drawn(const Image& image, int width, int height, bool upright)
{
    Canvas canvas(width, height);
    image.drawInto(canvas.buffer(), upright);
    return canvas;
}

}
