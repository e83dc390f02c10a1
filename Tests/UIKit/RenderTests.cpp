// Views as pixels.
#include "PhoneRoot.hpp"

#include "Simulator/UIKit/LayerTree.hpp"
#include "Simulator/UIKit/ScreenRenderer.hpp"

namespace Simulator {

using Pixel = std::array<int, 3>;

class Rendering : public PhoneRoot {
protected:
    Rendering()
    {
        screenSettings() = {{20, 20}, 2};
        window = makeWindow();
    }
    /// Red, green and blue at a point of the last frame.
    Pixel at(double x, double y)
    {
        const Graphics::FrameView frame = renderer.compositor().pixels();
        const auto* pixel = frame.pixels + int(y * 2) * frame.stride + int(x * 2) * 4;
        return {pixel[2], pixel[1], pixel[0]};
    }
    static UI::View colored(CGRect frame, const UI::Color& color)
    {
        const auto view = makeView(frame);
        view.setBackgroundColor(color);
        return view;
    }
    static constexpr Pixel red = {255, 0, 0};
    static constexpr Pixel blue = {0, 0, 255};
    static constexpr Pixel black = {0, 0, 0};
    UI::Color redColor = UI::Color::colorWithRed(1, 0, 0, 1);
    UI::Color blueColor = UI::Color::colorWithRed(0, 0, 1, 1);

    UI::View window;
    ScreenRenderer renderer;
};

TEST_F(Rendering, ViewsStandInFrontOfTheirSuperviews)
{
    const auto back = colored({{0, 0}, {10, 10}}, redColor);
    back.addSubview(colored({{5, 5}, {2, 2}}, blueColor));
    window.addSubview(back);
    renderer.render(windowOf(window));
    EXPECT_EQ(at(1, 1), red);
    EXPECT_EQ(at(6, 6), blue);
    EXPECT_EQ(at(15, 15), black);
}

TEST_F(Rendering, HiddenAndTransparentViewsAreLeftOut)
{
    const auto hidden = colored({{0, 0}, {10, 10}}, redColor);
    const auto clear = colored({{10, 0}, {10, 10}}, redColor);
    window.addSubview(hidden);
    window.addSubview(clear);
    hidden.setHidden(true);
    clear.setAlpha(0);
    EXPECT_TRUE(buildLayer(windowOf(window)).children.empty());
    renderer.render(windowOf(window));
    EXPECT_EQ(at(5, 5), black);
}

TEST_F(Rendering, OnlyWhatChangedIsDrawnAgain)
{
    const auto view = colored({{2, 2}, {4, 4}}, redColor);
    window.addSubview(view);
    renderer.render(windowOf(window));
    EXPECT_TRUE(renderer.render(windowOf(window)).empty());
    view.setBackgroundColor(blueColor);
    EXPECT_EQ(renderer.render(windowOf(window)).size(), 1u);
    EXPECT_EQ(at(3, 3), blue);
}

TEST_F(Rendering, ATemplatePictureTakesTheTint)
{
    const auto picture = UI::ImageView::make<"initWithImage:">(
        UI::Image::imageWithData(dataOf(png(10, 10))).imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate));
    window.addSubview(picture);
    picture.setTintColor(blueColor);
    renderer.render(windowOf(window));
    EXPECT_EQ(at(5, 5), blue);
    picture.setImage(picture.image().imageWithRenderingMode(UI::ImageRenderingMode::alwaysOriginal));
    renderer.render(windowOf(window));
    EXPECT_EQ(at(5, 5), red);
}

TEST_F(Rendering, ALayerWithoutAViewLiesBehindTheSubviews)
{
    const auto view = makeView({{0, 0}, {20, 20}});
    const auto layer = CA::Layer::sendClass<CA::Layer, "layer">();
    layer.send<void, "setFrame:">(CGRectMake(0, 0, 10, 10));
    layer.send<void, "setBackgroundColor:">(redColor.CGColor());
    view.layer().send<void, "addSublayer:">(layer);
    view.addSubview(colored({{5, 5}, {10, 10}}, blueColor));
    window.addSubview(view);
    renderer.render(windowOf(window));
    EXPECT_EQ(at(2, 2), red);
    EXPECT_EQ(at(7, 7), blue);
}

TEST_F(Rendering, ALabelShowsItsTextInItsColour)
{
    screenSettings() = {{100, 40}, 2};
    const auto label = makeLabel({{0, 0}, {100, 40}});
    label.setText("9:41"_ns);
    label.setFont(UI::Font::systemFontOfSize(30));
    label.setTextColor(redColor);
    window.addSubview(label);
    renderer.render(windowOf(window));
    int redPoints = 0;
    for (int x = 0; x < 100; ++x) {
        const Pixel pixel = at(x, 20);
        EXPECT_EQ(pixel[1] + pixel[2], 0);
        redPoints += pixel == red;
    }
    EXPECT_GT(redPoints, 0);
}

TEST_F(Rendering, SystemColoursFollowTheAppearanceOfTheNextFrame)
{
    window.setBackgroundColor(UI::Color::sendClass<UI::Color, "labelColor">());
    renderer.render(windowOf(window));
    EXPECT_EQ(at(5, 5), black);
    changeInterfaceStyle(windowOf(window), InterfaceStyle::dark);
    renderer.render(windowOf(window));
    EXPECT_EQ(at(5, 5), (Pixel{255, 255, 255}));
}

TEST_F(Rendering, AnEffectShowsWhatIsBehindIt)
{
    window.setBackgroundColor(redColor);
    const auto effect = ObjC::sendMessage<NS::Object>(
        reinterpret_cast<id>(objc_getClass("UIBlurEffect")), ObjC::selector<"effectWithStyle:">(), 2L);
    const auto pane = UI::View(ObjC::Object::adopting(
        ObjC::sendMessage<id>(
            ObjC::sendMessage<id>(reinterpret_cast<id>(objc_getClass("UIVisualEffectView")), ObjC::selector<"alloc">()),
            ObjC::selector<"initWithEffect:">(), effect))
                                   .raw());
    pane.setFrame({{0, 0}, {20, 20}});
    EXPECT_EQ((pane.send<UI::View, "contentView">().frame()), CGRectMake(0, 0, 20, 20));
    window.addSubview(pane);
    renderer.render(windowOf(window));
    const Pixel shown = at(10, 10);
    EXPECT_GT(shown[0], shown[1]);
    EXPECT_LT(shown[0], 255);
}

TEST_F(Rendering, ACaptureIsAPngOfTheScreensPixels)
{
    const auto image = Graphics::Image::fromBytes(renderer.capturePng(windowOf(window)));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Graphics::Size{40, 40}));
    screenSettings().scale = 3;
    EXPECT_EQ(Graphics::Image::fromBytes(renderer.capturePng(windowOf(window)))->size(), (Graphics::Size{60, 60}));
}

}
