// Pictures in PNG files, compared pixel by pixel.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Support {

struct Picture {
    unsigned width = 0;
    unsigned height = 0;
    std::vector<std::uint8_t> pixels; // red, green, blue of each

    /// Nothing if the file is not there or no PNG.
    static std::optional<Picture> read(const std::string& path);
    /// As small as it gets; answers whether it worked.
    bool write(const std::string& path) const;
    /// So many rows from one on, as far as there are any.
    Picture rows(unsigned first, unsigned count) const;
};

/// How far two pictures may be apart and still count as the same: a channel of a pixel by so much, and so many of the
/// pixels by more. The letters' edges differ a little between versions of the libraries that draw them.
struct PictureTolerance {
    int channel = 32;
    double share = 0.00003;
};

/// The share of the pixels that differ by more than the tolerance allows a channel; 1 for pictures of different sizes.
double differingShare(const Picture&, const Picture&, const PictureTolerance& = {});
/// White where they differ, black where they do not.
Picture differences(const Picture&, const Picture&, const PictureTolerance& = {});

}
