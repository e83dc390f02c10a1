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

    // Makes the memory; the other process opens it by its path.
    SharedFrame();
    explicit SharedFrame(const std::string& path);
    ~SharedFrame();
    SharedFrame(const SharedFrame&) = delete;
    SharedFrame& operator=(const SharedFrame&) = delete;

    const std::string& path() const { return _path; }

    // Maps as many pixels; the content stays where the size does. False when it was that size already.
    bool resize(int width, int height);
    int width() const { return _width; }
    int height() const { return _height; }
    std::uint8_t* row(int y) const
    {
        return _pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(_width) * 4;
    }

    int tilesAcross() const { return (_width + tileSide - 1) / tileSide; }
    int tilesDown() const { return (_height + tileSide - 1) / tileSide; }
    std::size_t tileCount() const
    {
        return static_cast<std::size_t>(tilesAcross()) * static_cast<std::size_t>(tilesDown());
    }
    Part tile(std::size_t index) const;

private:
    void unmap();

    std::string _path;
    Descriptor _file;
    std::uint8_t* _pixels = nullptr;
    int _width = 0;
    int _height = 0;
};

}
