// Draws an icon's SVG source as the PNG that the phone loads: black on transparent, as a template image wants it, or
// with colours of its own.
//   rasterise-icon in.svg out.png WIDTH HEIGHT [coloured]
#include <librsvg/rsvg.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace {

template <auto release>
struct Releaser {
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};
using Drawing = std::unique_ptr<RsvgHandle, Releaser<g_object_unref>>;
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Canvas = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;
using File = std::unique_ptr<GFile, Releaser<g_object_unref>>;

constexpr int sideLimit = 4'096;

struct Failure {
    int status; // 2: bad usage, 1: the work failed
    std::string message;
};

int readSide(std::string_view name, std::string_view text)
{
    int side = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
    if (error != std::errc{} || end != text.data() + text.size() || side < 1 || side > sideLimit)
        throw Failure{2,
            std::string(name) + " '" + std::string(text) + "' is not a number of pixels from 1 to "
                + std::to_string(sideLimit)};
    return side;
}

Failure takeError(const std::string& subject, GError* error)
{
    const std::unique_ptr<GError, Releaser<g_error_free>> owned(error);
    std::string reason = owned ? owned->message : "no reason given";
    for (char& character : reason)
        if (character == '\n')
            character = ' ';
    return {1, subject + ": " + reason};
}

Drawing openDrawing(const char* path)
{
    const File file(g_file_new_for_path(path));
    GError* error = nullptr;
    Drawing drawing(rsvg_handle_new_from_gfile_sync(file.get(), RSVG_HANDLE_FLAGS_NONE, nullptr, &error));
    if (!drawing)
        throw takeError(std::string("cannot read ") + path + " as SVG", error);
    return drawing;
}

Surface draw(const char* path, int width, int height)
{
    const Drawing drawing = openDrawing(path);
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    const Canvas canvas(cairo_create(surface.get()));
    const RsvgRectangle viewport = {0, 0, double(width), double(height)};
    GError* error = nullptr;
    if (!rsvg_handle_render_document(drawing.get(), canvas.get(), &viewport, &error))
        throw takeError(std::string("cannot draw ") + path, error);
    cairo_surface_flush(surface.get());
    return surface;
}

enum class Ink { black, coloured };

/// A template image is only its transparency: colour would be lost on the phone. A blank picture is a slip.
void check(const char* path, Ink ink, cairo_surface_t* surface)
{
    bool isBlank = true;
    const unsigned char* row = cairo_image_surface_get_data(surface);
    for (int y = 0; y < cairo_image_surface_get_height(surface); ++y, row += cairo_image_surface_get_stride(surface)) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(row);
        for (int x = 0; x < cairo_image_surface_get_width(surface); ++x) {
            if (ink == Ink::black && pixels[x] & 0xFFFFFF)
                throw Failure{1,
                    std::string(path) + " has colour at pixel " + std::to_string(x) + "," + std::to_string(y)
                        + "; an icon is black on transparent"};
            isBlank = isBlank && pixels[x] == 0;
        }
    }
    if (isBlank)
        throw Failure{1,
            std::string(path) + " draws nothing; an icon is " + (ink == Ink::black ? "black" : "coloured")
                + " on transparent"};
}

/// Through a neighbour, so that a build that is cut short leaves no half a picture.
void write(const std::string& path, cairo_surface_t* surface)
{
    const std::string unfinished = path + ".part";
    std::error_code error;
    const cairo_status_t status = cairo_surface_write_to_png(surface, unfinished.c_str());
    if (status == CAIRO_STATUS_SUCCESS)
        std::filesystem::rename(unfinished, path, error);
    if (status == CAIRO_STATUS_SUCCESS && !error)
        return;
    const std::string reason = error ? error.message() : cairo_status_to_string(status);
    std::filesystem::remove(unfinished, error);
    throw Failure{1, "cannot write " + path + ": " + reason};
}

void run(int count, char** arguments)
{
    const bool isColoured = count == 6 && arguments[5] == std::string_view("coloured");
    if (count != 5 && !isColoured)
        throw Failure{2, "usage: rasterise-icon in.svg out.png WIDTH HEIGHT [coloured]"};
    const int width = readSide("WIDTH", arguments[3]);
    const int height = readSide("HEIGHT", arguments[4]);
    const Surface surface = draw(arguments[1], width, height);
    check(arguments[1], isColoured ? Ink::coloured : Ink::black, surface.get());
    write(arguments[2], surface.get());
}

}

int main(int count, char** arguments)
{
    try {
        run(count, arguments);
        return 0;
    } catch (const Failure& failure) {
        std::fprintf(stderr, "rasterise-icon: %s\n", failure.message.c_str());
        return failure.status;
    }
}
