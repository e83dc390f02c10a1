// Pictures, and a phone to put them on.
#pragma once

#include "Simulator/Graphics/Image.hpp"
#include "UIKitTest.hpp"

#include <fstream>

namespace Simulator {

class PhoneRoot : public UIKitTest {
protected:
    /// A PNG of one colour, given as premultiplied red, green, blue, alpha.
    static std::vector<std::byte> png(int width, int height, std::array<std::uint8_t, 4> color = {255, 0, 0, 255})
    {
        std::vector<std::uint8_t> pixels;
        for (int i = 0; i < width * height; ++i)
            pixels.insert(pixels.end(), color.begin(), color.end());
        return Graphics::Image::fromPixels(pixels.data(), width, height, width * 4)->encodePng();
    }
    static void put(const std::string& path, const std::vector<std::byte>& bytes)
    {
        PhoneFiles::shared().put(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
    static NS::Data dataOf(const std::vector<std::byte>& bytes)
    {
        return NS::Data::dataWithBytes(bytes.data(), bytes.size());
    }
};

}
