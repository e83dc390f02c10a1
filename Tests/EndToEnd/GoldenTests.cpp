// Pictures of the lock screen and of its editor, beside those that someone has looked at. tools/update-golden draws
// them anew.
#include "Tests/EndToEnd/GoldenScenes.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Support::Picture;

class Golden : public testing::TestWithParam<GoldenScene> { };
class EditorGolden : public testing::TestWithParam<EditorScene> { };
class EditorScreenGolden : public testing::TestWithParam<EditorScene> { };

const auto testName = [](const auto& scene) { return goldenTestName(scene.param.name); };

}

TEST_P(Golden, PictureIsAsItWas)
{
    const GoldenScene& scene = GetParam();
    const fs::path drawn = newGoldenPicture(scene.name);
    ASSERT_NO_FATAL_FAILURE(drawGolden(scene, drawn));
    expectGolden(scene.name, drawn);
}

INSTANTIATE_TEST_SUITE_P(Scenes, Golden, testing::ValuesIn(goldenScenes), testName);

TEST_P(EditorGolden, PanelIsAsItWas)
{
    const EditorScene& scene = GetParam();
    const fs::path drawn = newGoldenPicture(scene.name);
    drawGolden(scene, drawn);
    const auto screen = Picture::read(drawn);
    ASSERT_TRUE(screen);
    // The row of buttons, the panel, and a little around them.
    constexpr unsigned aboveBottom = 401, height = 302;
    ASSERT_TRUE(screen->rows(screen->height - aboveBottom, height).write(drawn));
    expectGolden(scene.name, drawn);
}

INSTANTIATE_TEST_SUITE_P(Scenes, EditorGolden, testing::ValuesIn(editorScenes(EditorPart::panel)), testName);

TEST_P(EditorScreenGolden, ScreenIsAsItWas)
{
    const EditorScene& scene = GetParam();
    const fs::path drawn = newGoldenPicture(scene.name);
    drawGolden(scene, drawn);
    expectGolden(scene.name, drawn);
}

INSTANTIATE_TEST_SUITE_P(Scenes, EditorScreenGolden, testing::ValuesIn(editorScenes(EditorPart::screen)), testName);

TEST(PictureComparison, NoticesALetterAndOverlooksTheShadeOfAnEdge)
{
    const Picture plain{750, 1624, std::vector<std::uint8_t>(750 * 1624 * 3, 100)};
    const Support::PictureTolerance tolerance;
    auto shaded = plain;
    for (std::size_t i = 0; i < shaded.pixels.size(); i += 5)
        shaded.pixels[i] += tolerance.channel;
    EXPECT_EQ(differingShare(plain, shaded), 0);
    auto written = plain;
    constexpr std::size_t side = 12;
    for (std::size_t row = 0; row < side; ++row)
        std::fill_n(&written.pixels[(row * 750 + 300) * 3], side * 3, 255);
    EXPECT_GT(differingShare(plain, written), tolerance.share);
    const auto marked = differences(plain, written).pixels;
    EXPECT_EQ(std::count(marked.begin(), marked.end(), 255), side * side * 3);
    EXPECT_EQ(differingShare(plain, Picture()), 1);
}
