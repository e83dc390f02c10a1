// Frames as they are sent, and the memory that they come from.
#include "Simulator/Preview/FrameMessage.hpp"

#include <gtest/gtest.h>

using namespace Simulator;
using Control::Json;
using Control::SharedFrame;

namespace {

Json headerOf(const std::string& message)
{
    const auto byte = [&](int at) { return static_cast<std::size_t>(static_cast<unsigned char>(message[at])); };
    return Json::parse(message.substr(4, byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24));
}

}

TEST(FrameMessage, HoldsTheHeaderAndThePixelsOfEachPart)
{
    SharedFrame frame;
    frame.resize(66, 65);
    for (int y = 0; y < 65; ++y)
        for (int x = 0; x < 66 * 4; ++x)
            frame.row(y)[x] = static_cast<std::uint8_t>(x < 64 * 4 ? 1 : 2);
    Preview::Tiles tiles;
    tiles.add({1, 2});
    const std::string message = frameMessage(frame, tiles, {{"frame", 7}});
    EXPECT_EQ(headerOf(message), Json::parse(R"({"frame":7,"parts":[[64,0,2,64],[0,64,64,1]]})"));
    const std::string pixels = message.substr(message.size() - (2 * 64 + 64) * 4);
    EXPECT_EQ(pixels, std::string(2 * 64 * 4, '\2') + std::string(64 * 4, '\1'));
}

TEST(SharedFrame, IsTheSameMemoryByItsPath)
{
    SharedFrame reader;
    SharedFrame writer(reader.path());
    EXPECT_TRUE(writer.resize(10, 10));
    EXPECT_TRUE(reader.resize(10, 10));
    writer.row(9)[39] = 5;
    EXPECT_EQ(reader.row(9)[39], 5);
    EXPECT_FALSE(writer.resize(10, 10));
}

TEST(SharedFrame, GrowsUnderTheOtherReader)
{
    SharedFrame reader;
    reader.resize(10, 10);
    SharedFrame writer(reader.path());
    writer.resize(100, 100);
    writer.resize(5, 5);
    EXPECT_EQ(reader.row(9)[39], 0);
}

TEST(SharedFrame, SaysWhichPathCannotBeOpened)
{
    try {
        SharedFrame frame("/none");
        FAIL();
    } catch (const std::exception& error) {
        EXPECT_NE(std::string(error.what()).find("/none"), std::string::npos);
    }
}
