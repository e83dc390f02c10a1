// JPEG by libjpeg-turbo: size and orientation from the header, rows at the smallest reduction that is large enough.
#include "Simulator/Graphics/ImageSource.hpp"

#include <csetjmp>
#include <cstdio>
#include <cstring>

extern "C" {
#include <jerror.h>
#include <jpeglib.h>
}

namespace Simulator::Graphics {

namespace {

/// Many-scan files take as long as they like for a few bytes; none of this size is a photo.
constexpr double pixelLimit = 1 << 28;
constexpr int scanLimit = 128;
constexpr double scannedPixelLimit = 4.0 * pixelLimit;

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf escape;
};

[[noreturn]] void leave(j_common_ptr codec)
{
    std::longjmp(reinterpret_cast<ErrorManager*>(codec->err)->escape, 1);
}

/// Data that end early count as broken; other warnings are left to the decoder, as cameras write odd files.
void onMessage(j_common_ptr codec, int level)
{
    if (level < 0 && codec->err->msg_code == JWRN_HIT_MARKER)
        leave(codec);
}

void onProgress(j_common_ptr codec)
{
    const auto* decoder = reinterpret_cast<j_decompress_ptr>(codec);
    const double pixels = double(decoder->image_width) * decoder->image_height;
    if (decoder->input_scan_number > scanLimit || decoder->input_scan_number * pixels > scannedPixelLimit)
        leave(codec);
}

/// Holds nothing that a jump out of the decoder would leak.
struct Decoder {
    jpeg_decompress_struct state{};
    ErrorManager errors{};
    jpeg_progress_mgr progress{};

    explicit Decoder(std::span<const std::byte> bytes)
        : m_bytes(bytes)
    {
        state.err = jpeg_std_error(&errors.base);
        errors.base.error_exit = leave;
        errors.base.emit_message = onMessage;
        progress.progress_monitor = onProgress;
    }
    ~Decoder() { jpeg_destroy_decompress(&state); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    /// To be called after the return point is set.
    void readHeader()
    {
        jpeg_create_decompress(&state);
        state.progress = &progress;
        jpeg_save_markers(&state, JPEG_APP0 + 1, 0xFFFF);
        jpeg_mem_src(&state, reinterpret_cast<const unsigned char*>(m_bytes.data()), m_bytes.size());
        jpeg_read_header(&state, TRUE);
    }

private:
    std::span<const std::byte> m_bytes;
};

/// The camera's tag in the Exif block, which is a little TIFF file.
class ExifBlock {
public:
    explicit ExifBlock(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
        , m_isLittleEndian(bytes.size() >= 2 && bytes[0] == 'I')
    {
    }

    Orientation orientation() const
    {
        const std::size_t directory = number(4, 4);
        const std::size_t count = number(directory, 2);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = directory + 2 + i * 12;
            if (entry + 12 > m_bytes.size())
                break;
            constexpr std::size_t orientationTag = 0x0112;
            if (number(entry, 2) != orientationTag)
                continue;
            const std::size_t value = number(entry + 8, 2);
            return value >= 1 && value <= 8 ? static_cast<Orientation>(value) : Orientation::up;
        }
        return Orientation::up;
    }

private:
    /// 0 beyond the end.
    std::size_t number(std::size_t offset, std::size_t length) const
    {
        if (offset > m_bytes.size() || m_bytes.size() - offset < length)
            return 0;
        std::size_t value = 0;
        for (std::size_t i = 0; i < length; ++i)
            value = value << 8 | m_bytes[offset + (m_isLittleEndian ? length - 1 - i : i)];
        return value;
    }

    std::span<const std::uint8_t> m_bytes;
    bool m_isLittleEndian;
};

Orientation orientationOf(const jpeg_decompress_struct& state)
{
    constexpr char signature[] = "Exif\0";
    for (const auto* marker = state.marker_list; marker; marker = marker->next) {
        if (marker->data_length > 14 && std::memcmp(marker->data, signature, 6) == 0)
            return ExifBlock({marker->data + 6, marker->data_length - 6}).orientation();
    }
    return Orientation::up;
}

/// Progressive files are held as coefficients of the full size, whatever the reduction.
bool isAbsurd(jpeg_decompress_struct& state)
{
    const double pixels = double(state.image_width) * state.image_height;
    if (pixels < 1 || pixels > pixelLimit)
        return true;
    return jpeg_has_multiple_scans(&state)
        && pixels * state.num_components * sizeof(JCOEF) > static_cast<double>(decodedLimit);
}

/// In eighths. Only powers of two are fast, and quick to skip what a smaller picture does not need.
unsigned reductionFor(PixelSize stored, PixelSize wanted)
{
    for (unsigned eighths = 1; eighths < 8; eighths *= 2) {
        if (double(stored.width) * eighths / 8 >= wanted.width && double(stored.height) * eighths / 8 >= wanted.height)
            return eighths;
    }
    return 8;
}

/// Files of four inks are stored inverted.
void convertInks(std::uint8_t* pixels, int width)
{
    for (int x = 0; x < width; ++x, pixels += 4) {
        const unsigned black = pixels[3];
        const unsigned red = pixels[0];
        pixels[0] = static_cast<std::uint8_t>(pixels[2] * black / 255);
        pixels[1] = static_cast<std::uint8_t>(pixels[1] * black / 255);
        pixels[2] = static_cast<std::uint8_t>(red * black / 255);
        pixels[3] = 255;
    }
}

class JpegSource : public ImageSource {
public:
    explicit JpegSource(std::vector<std::byte> bytes)
        : m_bytes(std::move(bytes))
    {
    }

    bool readHeader()
    {
        Decoder decoder(m_bytes);
        if (setjmp(decoder.errors.escape))
            return false;
        decoder.readHeader();
        if (isAbsurd(decoder.state))
            return false;
        m_size = {static_cast<int>(decoder.state.image_width), static_cast<int>(decoder.state.image_height)};
        m_orientation = orientationOf(decoder.state);
        return true;
    }

    PixelSize storedSize() const override { return m_size; }
    Orientation orientation() const override { return m_orientation; }
    bool isOpaque() const override { return true; }
    std::span<const std::byte> encodedBytes() const override { return m_bytes; }

    bool decode(PixelSize wanted, RowReceiver& receiver) const override
    {
        // The decoder writes aligned rows past the cache, though they are read at once: so no row is aligned.
        constexpr std::size_t offset = 4;
        // Made before the return point, so that no jump passes over its destruction.
        std::vector<std::uint8_t> buffer(static_cast<std::size_t>(m_size.width) * 4 + offset);
        std::uint8_t* const row = buffer.data() + offset;
        Decoder decoder(m_bytes);
        auto& state = decoder.state;
        if (setjmp(decoder.errors.escape))
            return false;
        decoder.readHeader();
        state.scale_num = reductionFor(m_size, wanted);
        state.scale_denom = 8;
        const bool hasInks = state.jpeg_color_space == JCS_CMYK || state.jpeg_color_space == JCS_YCCK;
        state.out_color_space = hasInks ? JCS_CMYK : JCS_EXT_BGRA;
        jpeg_start_decompress(&state);
        const PixelSize size = {static_cast<int>(state.output_width), static_cast<int>(state.output_height)};
        const Size exact = {m_size.width * state.scale_num / 8.0, m_size.height * state.scale_num / 8.0};
        if (!receiver.begin(size, exact))
            return false;
        while (state.output_scanline < state.output_height) {
            JSAMPROW line = row;
            jpeg_read_scanlines(&state, &line, 1);
            if (hasInks)
                convertInks(row, size.width);
            receiver.row(row);
        }
        return true;
    }

private:
    std::vector<std::byte> m_bytes;
    PixelSize m_size;
    Orientation m_orientation = Orientation::up;
};

}

std::shared_ptr<const ImageSource> openJpeg(std::vector<std::byte> bytes)
{
    auto source = std::make_shared<JpegSource>(std::move(bytes));
    return source->readHeader() ? source : nullptr;
}

}
