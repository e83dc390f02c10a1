// The picture of the screen in memory that the shell process draws into and the preview reads: rows of red, green, blue
// and alpha. It is divided into square tiles, and only those that differ are written and sent on.
#pragma once

#include "Simulator/Base/Descriptor.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace Simulator::Control {

class SharedFrame {
public:
    static constexpr int tileSide = 64; // in pixels; less at the right and the lower edge

    struct Part {
        int x, y, width, height;
    };

    /// Makes the memory; the other process opens it by its path.
    SharedFrame();
    explicit SharedFrame(const std::string& path);
    ~SharedFrame();
    SharedFrame(const SharedFrame&) = delete;
    SharedFrame& operator=(const SharedFrame&) = delete;

    const std::string& path() const { return m_path; }

    /// Maps as many pixels; the content stays where the size does. False when it was that size already.
    bool resize(int width, int height);
    int width() const { return m_width; }
    int height() const { return m_height; }
    std::uint8_t* row(int y) const
    {
        return m_pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) * 4;
    }

    int tilesAcross() const { return (m_width + tileSide - 1) / tileSide; }
    int tilesDown() const { return (m_height + tileSide - 1) / tileSide; }
    std::size_t tileCount() const
    {
        return static_cast<std::size_t>(tilesAcross()) * static_cast<std::size_t>(tilesDown());
    }
    Part tile(std::size_t index) const;

private:
    void unmap();

    std::string m_path;
    Descriptor m_file;
    std::uint8_t* m_pixels = nullptr;
    int m_width = 0;
    int m_height = 0;
};

}
