// UIImage: files, scales, rendering modes.
#include "PhoneRoot.hpp"

#include "Simulator/UIKit/UIImage.hpp"

namespace Simulator {

class Images : public PhoneRoot {
protected:
    static UI::Image fileImage(const char* path)
    {
        return UI::Image::imageWithContentsOfFile(NS::String::fromUTF8(path));
    }
    static const std::string& pathOf(const UI::Image& image) { return imageStandIn(image)->path; }
    static std::array<std::uint8_t, 4> averageOf(const UI::Image& image)
    {
        std::array<std::uint8_t, 4> pixel{};
        imageStandIn(image)->image->drawInto({pixel.data(), 1, 1, 4});
        return pixel;
    }
};

TEST_F(Images, AFileBecomesAPicture)
{
    put("/Library/a.png", png(30, 20));
    const auto image = fileImage("/Library/a.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(image.size(), (CGSize{30, 20}));
    EXPECT_EQ(image.scale(), 1);
    EXPECT_EQ(CGImageGetWidth(image.CGImage()), 30u);
    EXPECT_EQ(CGImageGetHeight(image.CGImage()), 20u);
    EXPECT_EQ(image.CGImage(), image.CGImage());
}

TEST_F(Images, WhatIsNoPictureIsNil)
{
    put("/Library/a.png", {});
    PhoneFiles::shared().put("/Library/b.png", "no picture");
    EXPECT_FALSE(fileImage("/Library/a.png"));
    EXPECT_FALSE(fileImage("/Library/b.png"));
    EXPECT_FALSE(fileImage("/Library/none.png"));
    EXPECT_FALSE(fileImage("/Library"));
    EXPECT_FALSE(fileImage(""));
    EXPECT_FALSE(UI::Image::imageWithContentsOfFile({}));
    EXPECT_FALSE(UI::Image::imageWithData({}));
    EXPECT_FALSE(UI::Image::imageWithData(NS::Data(("text"_ns).raw())));
    EXPECT_FALSE(UI::Image::imageNamed("relative"_ns));
    EXPECT_FALSE(UI::Image::systemImageNamed("no.such.symbol"_ns));
    EXPECT_EQ(CGImageGetWidth(nullptr), 0u);
}

TEST_F(Images, TheScreensScaleChoosesTheFile)
{
    put("/Library/icon.png", png(10, 10));
    put("/Library/icon@2x.png", png(20, 20));
    put("/Library/icon@3x.png", png(30, 30));
    put("/Library/only@2x.png", png(8, 8));
    EXPECT_EQ(UI::Image::imageNamed("/Library/icon"_ns).scale(), 3);
    EXPECT_EQ(UI::Image::imageNamed("/Library/icon.png"_ns).size(), (CGSize{10, 10}));
    EXPECT_EQ(pathOf(fileImage("/Library/icon.png")), "/Library/icon@3x.png");
    EXPECT_EQ(UI::Image::imageNamed("/Library/only"_ns).size(), (CGSize{4, 4}));
    EXPECT_EQ(fileImage("/Library/icon@2x.png").scale(), 2);
    screenSettings().scale = 2;
    EXPECT_EQ(pathOf(fileImage("/Library/icon.png")), "/Library/icon@2x.png");
    screenSettings().scale = 1;
    EXPECT_EQ(pathOf(fileImage("/Library/icon.png")), "/Library/icon.png");
}

TEST_F(Images, ARenderingModeIsAnotherObjectWithTheSamePixels)
{
    const auto image = UI::Image::imageWithData(dataOf(png(2, 2)));
    const auto shape = image.imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate);
    EXPECT_NE(shape, image);
    EXPECT_EQ(shape.renderingMode(), UI::ImageRenderingMode::alwaysTemplate);
    EXPECT_EQ(image.renderingMode(), UI::ImageRenderingMode::automatic);
    EXPECT_EQ(imageStandIn(shape)->image, imageStandIn(image)->image);
}

TEST_F(Images, PngBytesKeepThePixelsAndWhereTheyCameFrom)
{
    put("/Library/a.png", png(3, 2, {0, 255, 0, 255}));
    const auto data = NS::Data(UIImagePNGRepresentation(fileImage("/Library/a.png").raw()));
    const auto image = UI::Image::imageWithData(data);
    EXPECT_EQ(image.size(), (CGSize{3, 2}));
    EXPECT_EQ(averageOf(image), (std::array<std::uint8_t, 4>{0, 255, 0, 255}));
    EXPECT_EQ(pathOf(image), "/Library/a.png");
    EXPECT_EQ(UIImagePNGRepresentation(nullptr), nullptr);
    EXPECT_EQ(UIImagePNGRepresentation(("text"_ns).raw()), nullptr);
}

TEST_F(Images, AnImageContextCollectsWhatIsDrawn)
{
    UIGraphicsBeginImageContextWithOptions({10, 20}, false, 2);
    UI::Image::imageWithData(dataOf(png(1, 1))).drawInRect({{0, 0}, {10, 20}});
    const UI::Image drawn(UIGraphicsGetImageFromCurrentImageContext());
    UIGraphicsEndImageContext();
    EXPECT_EQ(drawn.size(), (CGSize{10, 20}));
    EXPECT_EQ(drawn.scale(), 2);
    EXPECT_EQ(CGImageGetHeight(drawn.CGImage()), 40u);
    EXPECT_EQ(averageOf(drawn), (std::array<std::uint8_t, 4>{255, 0, 0, 255}));
}

TEST_F(Images, AnEmptyContextIsTransparentOrBlack)
{
    UIGraphicsBeginImageContextWithOptions({2, 2}, false, 0);
    EXPECT_EQ(averageOf(UI::Image(UIGraphicsGetImageFromCurrentImageContext()))[3], 0);
    EXPECT_EQ(UI::Image(UIGraphicsGetImageFromCurrentImageContext()).scale(), 3);
    UIGraphicsEndImageContext();
    UIGraphicsBeginImageContextWithOptions({2, 2}, true, 0);
    EXPECT_EQ(averageOf(UI::Image(UIGraphicsGetImageFromCurrentImageContext()))[3], 255);
    UIGraphicsEndImageContext();
}

TEST_F(Images, AnAbsurdContextHasNoPicture)
{
    for (const CGSize size : {CGSize{0, 10}, CGSize{-1, -1}, CGSize{1e9, 1e9}, CGSize{HUGE_VAL, 1}}) {
        UIGraphicsBeginImageContextWithOptions(size, true, 1);
        EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr);
        UIGraphicsEndImageContext();
    }
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr);
    UI::Image::imageWithData(dataOf(png(1, 1))).drawInRect({{0, 0}, {1, 1}});
}

TEST_F(Images, ASymbolIsATemplateDrawnAtTheScreensScale)
{
    std::filesystem::create_directories(root() + "/symbols");
    std::ofstream(root() + "/symbols/square.svg")
        << R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><path d="M0 0h20v20H0z"/></svg>)";
    setUpSymbols(root() + "/symbols");
    const auto symbol = UI::Image::systemImageNamed("square"_ns);
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol.size(), (CGSize{20, 20}));
    EXPECT_EQ(CGImageGetWidth(symbol.CGImage()), 60u);
    EXPECT_TRUE(imageStandIn(symbol)->isTemplate());
    EXPECT_FALSE(imageStandIn(symbol.imageWithRenderingMode(UI::ImageRenderingMode::alwaysOriginal))->isTemplate());
    EXPECT_EQ(pathOf(symbol), "square");
    setUpSymbols({});
}

TEST_F(Images, ATintFillsTheShape)
{
    const auto image = UI::Image::imageWithData(dataOf(png(4, 4)));
    const auto blue = UI::Color::colorWithRed(0, 0, 1, 1);
    const auto tinted = image.send<UI::Image, "imageWithTintColor:">(blue);
    EXPECT_EQ(tinted.size(), image.size());
    EXPECT_EQ(averageOf(tinted), (std::array<std::uint8_t, 4>{0, 0, 255, 255}));
}

}
