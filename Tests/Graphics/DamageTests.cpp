// Redrawing only what changed gives the same picture as redrawing everything.
#include "Screen.hpp"

#include <gtest/gtest.h>

#include <random>

namespace Simulator::Graphics {

using namespace Samples;

namespace {

/// Trees of all kinds of layers, and small changes to them; the same for the same seed on every machine.
class TreeMaker {
public:
    explicit TreeMaker(unsigned seed)
        : m_random(seed)
        , m_picture(Image::fromBytes(png(30, 20, quarters(30, 20))))
        , m_photo(Image::fromBytes(jpeg(80, 60, quarters(80, 60))))
    {
    }

    std::vector<Layer> layers(int count, int depth)
    {
        std::vector<Layer> layers;
        for (int i = 0; i < count; ++i)
            layers.push_back(layer(depth));
        return layers;
    }

    void change(std::vector<Layer>& layers)
    {
        const int kind = below(6);
        if (layers.empty() || kind == 0) {
            layers.insert(layers.begin() + below(static_cast<int>(layers.size()) + 1), layer(1));
            return;
        }
        Layer& chosen = layers[static_cast<std::size_t>(below(static_cast<int>(layers.size())))];
        if (kind == 1)
            layers.erase(layers.begin() + (&chosen - layers.data()));
        else if (kind == 2)
            std::swap(chosen, layers.back());
        else if (kind == 3)
            chosen.opacity = below(5) / 4.0;
        else if (kind == 4 && !chosen.children.empty())
            change(chosen.children);
        else
            chosen.position.x += below(9) - 4.3;
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool onceIn(int number) { return below(number) == 0; }
    Color color() { return {below(256) / 255.0, below(256) / 255.0, below(256) / 255.0, onceIn(2) ? 1 : 0.6}; }
    Rect frame() { return {below(90) - 15 + below(3) / 3.0, below(90) - 15 + 0.0, below(60) + 1.0, below(60) + 1.5}; }

    LayerContent content()
    {
        switch (below(8)) {
        case 0:
        case 1:
            return text();
        case 2:
            return ImageContent{m_picture, static_cast<ContentMode>(below(4)), 1, {}};
        case 3:
            return ImageContent{
                m_photo, static_cast<ContentMode>(below(4)), 2, onceIn(3) ? std::optional(color()) : std::nullopt};
        case 4:
            return Gradient{{color(), color(), color()}, {}, {0, 0}, {1, 0.7}};
        case 5:
            return BackdropBlur{below(12) + 0.0, color().withAlpha(0.3)};
        default:
            return {};
        }
    }

    Text text()
    {
        constexpr const char* words[] = {"9:41", "Sunday, November 15", "87 %", "שלום", "日本"};
        Text text;
        text.runs.push_back({words[below(5)], nullptr, 6.0 + below(20), color(), {}});
        text.runs.push_back({words[below(5)], nullptr, 6.0 + below(20), color(), {}});
        TextRun inlinePicture;
        inlinePicture.attachment = TextAttachment{m_picture, {0, -2, 9, 6}, onceIn(2)};
        text.runs.push_back(inlinePicture);
        text.numberOfLines = below(3);
        text.alignment = static_cast<TextAlignment>(below(5));
        return text;
    }

    Layer layer(int depth)
    {
        Layer layer = Layer::withFrame(frame());
        if (onceIn(2))
            layer.backgroundColor = color();
        layer.content = content();
        layer.cornerRadius = onceIn(3) ? below(20) : 0;
        layer.borderWidth = onceIn(4) ? below(4) : 0;
        layer.borderColor = color();
        layer.clipsToBounds = onceIn(4);
        layer.opacity = onceIn(3) ? below(100) / 99.0 : 1;
        if (onceIn(4))
            layer.shadow = {0.8, color(), below(6) + 0.0, {below(9) - 4.0, below(9) - 4.0}};
        if (onceIn(5))
            layer.transform = AffineTransform::rotation(below(100) / 50.0);
        if (depth > 0)
            layer.children = layers(below(4), depth - 1);
        return layer;
    }

    std::mt19937 m_random;
    Image::Pointer m_picture;
    Image::Pointer m_photo;
};

bool areDisjoint(const std::vector<PixelRect>& rects)
{
    for (std::size_t i = 0; i < rects.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (rects[i].intersects(rects[j]))
                return false;
        }
    }
    return true;
}

/// Pixels that differ although they are not reported as damaged.
int unreportedChanges(const std::vector<std::uint8_t>& before, const std::vector<std::uint8_t>& after, int width,
    const std::vector<PixelRect>& damage)
{
    int count = 0;
    for (std::size_t i = 0; i < before.size(); i += 4) {
        const int pixel = static_cast<int>(i / 4);
        const PixelRect place = {pixel % width, pixel / width, 1, 1};
        const bool isReported
            = std::any_of(damage.begin(), damage.end(), [&](const PixelRect& rect) { return rect.contains(place); });
        if (!isReported
            && !std::equal(before.begin() + static_cast<std::ptrdiff_t>(i),
                before.begin() + static_cast<std::ptrdiff_t>(i) + 4, after.begin() + static_cast<std::ptrdiff_t>(i)))
            ++count;
    }
    return count;
}

void expectRedrawsEqual(unsigned seed, double scale)
{
    TreeMaker maker(seed);
    auto layers = maker.layers(6, 2);
    Screen incremental({80, 80}, scale);
    incremental.show(layers);
    const int width = incremental.compositor().pixels().width;
    for (int step = 0; step < 12; ++step) {
        const auto before = incremental.bytes();
        maker.change(layers);
        const auto damage = incremental.show(layers);
        const auto after = incremental.bytes();
        Screen full({80, 80}, scale);
        full.show(layers);
        ASSERT_TRUE(full.bytes() == after) << "seed " << seed << ", step " << step;
        EXPECT_TRUE(areDisjoint(damage)) << "seed " << seed << ", step " << step;
        EXPECT_EQ(unreportedChanges(before, after, width, damage), 0) << "seed " << seed << ", step " << step;
    }
}

}

TEST(Damage, RedrawingInPartEqualsRedrawingInFull)
{
    for (unsigned seed = 1; seed <= 40; ++seed)
        expectRedrawsEqual(seed, 1);
}

TEST(Damage, RedrawingInPartEqualsRedrawingInFullOnASharpScreen)
{
    for (unsigned seed = 100; seed <= 115; ++seed)
        expectRedrawsEqual(seed, 3);
}

TEST(Damage, TheFirstFrameIsAllDamage)
{
    Screen screen({20, 20}, 2);
    EXPECT_EQ(screen.show(box({1, 1, 2, 2}, red)), (std::vector<PixelRect>{{0, 0, 40, 40}}));
}

TEST(Damage, TheSameTreeAgainIsNone)
{
    Screen screen({100, 100});
    Layer layer = label({0, 0, 100, 30}, "9:41");
    layer.shadow = {1, red, 3, {2, 2}};
    screen.show(layer);
    EXPECT_TRUE(screen.show(layer).empty());
}

TEST(Damage, AChangedLabelDamagesItsGlyphsOnly)
{
    Screen screen({200, 200});
    const Layer ground = box({0, 0, 200, 200}, blue);
    screen.show({ground, label({50, 50, 100, 30}, "9:41"), label({50, 150, 100, 30}, "Sunday")});
    const auto damage = screen.show({ground, label({50, 50, 100, 30}, "9:42"), label({50, 150, 100, 30}, "Sunday")});
    ASSERT_EQ(damage.size(), 1u);
    EXPECT_TRUE((PixelRect{45, 45, 110, 40}.contains(damage.front())));
}

TEST(Damage, AShadowBelongsToTheDamage)
{
    Screen screen({100, 100});
    Layer layer = box({40, 40, 10, 10}, red);
    screen.show(layer);
    layer.shadow = {1, white, 4, {0, 20}};
    const auto damage = screen.show(layer);
    ASSERT_EQ(damage.size(), 1u);
    EXPECT_TRUE(damage.front().contains({40, 60, 10, 18}));
}

TEST(Damage, AMovedLayerDamagesBothPlaces)
{
    Screen screen({100, 100});
    screen.show(box({10, 10, 10, 10}, red));
    const auto damage = screen.show(box({70, 70, 10, 10}, red));
    EXPECT_EQ(damage, (std::vector<PixelRect>{{10, 10, 10, 10}, {70, 70, 10, 10}}));
}

TEST(Damage, LayersThatChangeTheirOrderAreRedrawn)
{
    Screen screen({100, 100});
    const Layer one = box({10, 10, 20, 20}, red);
    const Layer other = box({20, 20, 20, 20}, blue);
    screen.show({one, other});
    screen.show({other, one});
    EXPECT_EQ(screen.at(25, 25), (Rgba{255, 0, 0}));
}

TEST(Damage, WithinAFadedLayerOnlyTheChangedChildCounts)
{
    Screen screen({100, 100});
    Layer faded = box({0, 0, 100, 100}, green);
    faded.opacity = 0.5;
    faded.children = {box({10, 10, 10, 10}, red), box({50, 50, 10, 10}, red)};
    screen.show(faded);
    faded.children[1].backgroundColor = blue;
    EXPECT_EQ(screen.show(faded), (std::vector<PixelRect>{{50, 50, 10, 10}}));
}

TEST(Damage, AnInvalidFrameIsRedrawnInFull)
{
    Screen screen({20, 20});
    screen.show(box({1, 1, 2, 2}, red));
    const auto before = screen.bytes();
    screen.compositor().invalidate();
    EXPECT_EQ(screen.show(box({1, 1, 2, 2}, red)), (std::vector<PixelRect>{{0, 0, 20, 20}}));
    EXPECT_EQ(screen.bytes(), before);
}

}
