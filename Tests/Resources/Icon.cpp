// Reads an icon by the phone's own decoder.
#include "Icon.hpp"

#include <png.h>

#include <stdexcept>

namespace Icons {

double Icon::ink() const
{
    double sum = 0;
    for (std::size_t i = 3; i < pixels.size(); i += 4)
        sum += pixels[i];
    return sum / 255;
}

int Icon::rightEdge() const
{
    for (int x = width - 1; x >= 0; --x)
        for (int y = 0; y < height; ++y)
            if (alpha(x, y))
                return x + 1;
    return 0;
}

Icon readFile(const std::string& path)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path.c_str()))
        throw std::runtime_error(path + ": " + image.message);
    Icon icon;
    icon.width = static_cast<int>(image.width);
    icon.height = static_cast<int>(image.height);
    icon.hasTransparency = image.format & PNG_FORMAT_FLAG_ALPHA;
    image.format = PNG_FORMAT_RGBA;
    icon.pixels.resize(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, icon.pixels.data(), 0, nullptr))
        throw std::runtime_error(path + ": " + image.message);
    return icon;
}

Icon read(const std::string& name)
{
    return readFile(ICON_FOLDER "/" + name + ".png");
}

bool overlap(const Icon& first, const Icon& second)
{
    for (int y = 0; y < first.height; ++y)
        for (int x = 0; x < first.width; ++x)
            if (first.alpha(x, y) && second.alpha(x, y))
                return true;
    return false;
}

bool isWithin(const Icon& inner, const Icon& outer)
{
    for (int y = 0; y < inner.height; ++y)
        for (int x = 0; x < inner.width; ++x)
            if (inner.alpha(x, y) > outer.alpha(x, y))
                return false;
    return true;
}

}
