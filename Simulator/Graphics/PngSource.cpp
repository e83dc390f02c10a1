// PNG by libpng, row by row; only interlaced files are held as a whole.
#include "Simulator/Graphics/ImageSource.hpp"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>

namespace Simulator::Graphics {

namespace {

constexpr std::size_t chunkLimit = 8u << 20;
constexpr png_uint_32 sideLimit = 65'535;

[[noreturn]] void onError(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) { }

void read(png_structp png, png_bytep out, std::size_t length)
{
    auto& rest = *static_cast<std::span<const std::byte>*>(png_get_io_ptr(png));
    if (rest.size() < length)
        png_error(png, "cut short");
    std::memcpy(out, rest.data(), length);
    rest = rest.subspan(length);
}

struct Reader {
    std::span<const std::byte> rest;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;

    explicit Reader(std::span<const std::byte> bytes)
        : rest(bytes)
    {
    }
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// To be called after the return point is set.
    void readHeader()
    {
        png_set_read_fn(png, &rest, read);
        png_set_user_limits(png, sideLimit, sideLimit);
        png_set_chunk_malloc_max(png, chunkLimit);
        png_set_chunk_cache_max(png, 64);
        png_read_info(png, info);
    }

    /// Every kind of PNG as four channels of eight bits, blue first.
    void convertToPixels()
    {
        png_set_expand(png);
        png_set_scale_16(png);
        png_set_gray_to_rgb(png);
        png_set_bgr(png);
        png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    }
};

void premultiply(std::uint8_t* pixels, int width)
{
    for (int x = 0; x < width; ++x, pixels += 4) {
        const unsigned alpha = pixels[3];
        if (alpha == 255)
            continue;
        for (int channel = 0; channel < 3; ++channel)
            pixels[channel] = static_cast<std::uint8_t>((pixels[channel] * alpha + 127) / 255);
    }
}

class PngSource : public ImageSource {
public:
    explicit PngSource(std::vector<std::byte> bytes)
        : m_bytes(std::move(bytes))
    {
    }

    bool readHeader()
    {
        Reader reader(m_bytes);
        if (!reader.info || setjmp(png_jmpbuf(reader.png)))
            return false;
        reader.readHeader();
        m_size.width = static_cast<int>(png_get_image_width(reader.png, reader.info));
        m_size.height = static_cast<int>(png_get_image_height(reader.png, reader.info));
        m_isOpaque = !(png_get_color_type(reader.png, reader.info) & PNG_COLOR_MASK_ALPHA)
            && !png_get_valid(reader.png, reader.info, PNG_INFO_tRNS);
        return std::size_t(m_size.width) * std::size_t(m_size.height) * 4 <= decodedLimit;
    }

    PixelSize storedSize() const override { return m_size; }
    bool isOpaque() const override { return m_isOpaque; }
    std::span<const std::byte> encodedBytes() const override { return m_bytes; }

    bool decode(PixelSize, RowReceiver& receiver) const override
    {
        // Made before the return point, so that no jump passes over its destruction.
        std::vector<std::uint8_t> held;
        std::vector<png_bytep> rows;
        Reader reader(m_bytes);
        if (!reader.info || setjmp(png_jmpbuf(reader.png)))
            return false;
        reader.readHeader();
        const int passes = png_set_interlace_handling(reader.png);
        reader.convertToPixels();
        png_read_update_info(reader.png, reader.info);
        const auto stride = static_cast<std::size_t>(m_size.width) * 4;
        if (png_get_rowbytes(reader.png, reader.info) != stride
            || !receiver.begin(m_size, {double(m_size.width), double(m_size.height)}))
            return false;
        const auto heldRows = passes == 1 ? 1 : static_cast<std::size_t>(m_size.height);
        held.resize(stride * heldRows);
        rows.resize(static_cast<std::size_t>(m_size.height));
        for (std::size_t y = 0; y < rows.size(); ++y)
            rows[y] = held.data() + (passes == 1 ? 0 : y * stride);
        for (int pass = 1; pass < passes; ++pass)
            png_read_rows(reader.png, rows.data(), nullptr, static_cast<png_uint_32>(rows.size()));
        for (png_bytep row : rows) {
            png_read_row(reader.png, row, nullptr);
            premultiply(row, m_size.width);
            receiver.row(row);
        }
        return true;
    }

private:
    std::vector<std::byte> m_bytes;
    PixelSize m_size;
    bool m_isOpaque = false;
};

}

std::shared_ptr<const ImageSource> openPng(std::vector<std::byte> bytes)
{
    auto source = std::make_shared<PngSource>(std::move(bytes));
    return source->readHeader() ? source : nullptr;
}

}
