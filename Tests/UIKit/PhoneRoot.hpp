// A phone with a file system in a temporary folder, gone when the test ends, and pictures to put there.
#pragma once

#include "Simulator/Graphics/Image.hpp"
#include "UIKitTest.hpp"

#include <fstream>

#include <cstdlib>
#include <filesystem>

namespace Simulator {

class PhoneRoot : public UIKitTest {
protected:
    PhoneRoot()
    {
        std::string name = testing::TempDir() + "uikit-XXXXXX";
        root = ::mkdtemp(name.data());
        PhoneFiles::shared().setRoot(root);
    }
    ~PhoneRoot() override
    {
        PhoneFiles::shared().clearFaults();
        std::filesystem::remove_all(root);
    }

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

    std::string root;
};

}
