// An icon of the resource folder, read pixel by pixel.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Icons {

struct Icon {
    int width = 0;
    int height = 0;
    bool hasTransparency = false; // in the file, not by conversion
    std::vector<std::uint8_t> pixels; // red, green, blue, alpha

    int alpha(int x, int y) const { return pixels[(static_cast<std::size_t>(y) * width + x) * 4 + 3]; }
    /// As much as how many opaque pixels.
    double ink() const;
    /// One past the last column that shows.
    int rightEdge() const;
};

/// "SS16/alarm" of the built resource folder. Throws where it is no picture.
Icon read(const std::string& name);
Icon readFile(const std::string& path);

/// Where both icons show.
bool overlap(const Icon& first, const Icon& second);
/// Whether the inner icon shows nowhere more than the outer one.
bool isWithin(const Icon& inner, const Icon& outer);

inline constexpr std::array levelSteps = {5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 85, 90, 100};

}
