// Tiles and the rectangles that they make.
#include "Simulator/Preview/Tiles.hpp"

#include <gtest/gtest.h>

using Simulator::Control::SharedFrame;
using Simulator::Preview::Tiles;

namespace {

using Rectangles = std::vector<std::vector<int>>;

/// Three tiles across and three down; those at the edges are smaller.
class TilesOfAFrame : public testing::Test {
protected:
    TilesOfAFrame() { frame.resize(150, 140); }

    Rectangles parts() const
    {
        Rectangles rectangles;
        for (const auto& [x, y, width, height] : tiles.parts(frame))
            rectangles.push_back({x, y, width, height});
        return rectangles;
    }

    SharedFrame frame;
    Tiles tiles;
};

}

TEST_F(TilesOfAFrame, AreNoneAtFirst)
{
    EXPECT_TRUE(tiles.isEmpty());
    EXPECT_EQ(parts(), Rectangles());
}

TEST_F(TilesOfAFrame, MakeOneRectangleOfTheWholeScreen)
{
    tiles.addAll(frame.tileCount());
    EXPECT_EQ(frame.tileCount(), 9u);
    EXPECT_EQ(parts(), (Rectangles{{0, 0, 150, 140}}));
}

TEST_F(TilesOfAFrame, AreCutAtTheEdges)
{
    tiles.add({8});
    EXPECT_EQ(parts(), (Rectangles{{128, 128, 22, 12}}));
}

TEST_F(TilesOfAFrame, AreJoinedSideBySideAndBelowOneAnother)
{
    tiles.add({0, 1, 3, 4, 8});
    EXPECT_EQ(parts(), (Rectangles{{0, 0, 128, 128}, {128, 128, 22, 12}}));
}

TEST_F(TilesOfAFrame, AreNotJoinedWhereARowEndsAndTheNextBegins)
{
    tiles.add({2, 3});
    EXPECT_EQ(parts(), (Rectangles{{128, 0, 22, 64}, {0, 64, 64, 64}}));
}

TEST_F(TilesOfAFrame, AreForgottenWhenTheyWereSent)
{
    tiles.add({0, 5});
    tiles.clear();
    EXPECT_TRUE(tiles.isEmpty());
}

TEST_F(TilesOfAFrame, LeaveOutWhatASmallerScreenHasNotGot)
{
    tiles.addAll(20);
    EXPECT_EQ(parts(), (Rectangles{{0, 0, 150, 140}}));
}
