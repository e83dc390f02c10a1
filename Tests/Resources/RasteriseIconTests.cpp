// The tool that draws the icons: the same picture every time, and one clear line where it cannot.
#include "Icon.hpp"

#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace Support;

const std::string alarm = ICON_SOURCES "/SS16/alarm.svg";

std::string drawing(const std::string& content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">)" + content
        + "</svg>";
}

class RasteriseIcon : public testing::Test {
protected:
    void SetUp() override { setenv("LYR_PROGRAM", RASTERISE_ICON, 1); }
    void TearDown() override { unsetenv("LYR_PROGRAM"); }

    std::string out() const { return folder.at("out.png"); }

    void expectFailure(const std::vector<std::string>& arguments, int status, const std::string& advice) const
    {
        const Finished finished = runProgram(arguments);
        EXPECT_EQ(finished.status, status) << finished.errors;
        EXPECT_EQ(finished.output, "");
        EXPECT_EQ(finished.errors.rfind("rasterise-icon: ", 0), 0u) << finished.errors;
        EXPECT_EQ(std::count(finished.errors.begin(), finished.errors.end(), '\n'), 1) << finished.errors;
        EXPECT_NE(finished.errors.find(advice), std::string::npos) << finished.errors;
        EXPECT_FALSE(folder.has("out.png"));
        EXPECT_FALSE(folder.has("out.png.part"));
    }

    TemporaryFolder folder;
};

TEST_F(RasteriseIcon, DrawsTheSizeThatIsAskedFor)
{
    ASSERT_EQ(runProgram({alarm, out(), "33", "20"}).status, 0);
    const Icons::Icon icon = Icons::readFile(out());
    EXPECT_EQ(icon.width, 33);
    EXPECT_EQ(icon.height, 20);
    EXPECT_TRUE(icon.hasTransparency);
    EXPECT_GT(icon.ink(), 20);
}

TEST_F(RasteriseIcon, WritesTheSameBytesEveryTime)
{
    ASSERT_EQ(runProgram({alarm, out(), "96", "96"}).status, 0);
    ASSERT_EQ(runProgram({alarm, folder.at("again.png"), "96", "96"}).status, 0);
    EXPECT_EQ(folder.read("out.png"), folder.read("again.png"));
    EXPECT_EQ(Icons::readFile(out()).pixels, Icons::read("SS16/alarm").pixels);
}

TEST_F(RasteriseIcon, SaysHowItIsUsed)
{
    expectFailure({}, 2, "usage: rasterise-icon in.svg out.png WIDTH HEIGHT [coloured]");
    expectFailure({alarm, out(), "96"}, 2, "usage");
    expectFailure({alarm, out(), "96", "96", "96"}, 2, "usage");
    expectFailure({alarm, out(), "96", "96", "coloured", "coloured"}, 2, "usage");
}

TEST_F(RasteriseIcon, RefusesSizesThatAreNoNumberOfPixels)
{
    const std::string advice = " is not a number of pixels from 1 to 4096";
    for (const std::string side : {"", "0", "-3", "4097", "99999999999999999999", "12px", "1.5"}) {
        expectFailure({alarm, out(), side, "96"}, 2, std::string("WIDTH '").append(side).append("'").append(advice));
        expectFailure({alarm, out(), "96", side}, 2, std::string("HEIGHT '").append(side).append("'").append(advice));
    }
}

TEST_F(RasteriseIcon, NamesAFileThatItCannotRead)
{
    expectFailure({folder.at("none.svg"), out(), "96", "96"}, 1, "cannot read " + folder.at("none.svg"));
    expectFailure(
        {folder.put("text.svg", "no drawing\n"), out(), "96", "96"}, 1, "cannot read " + folder.at("text.svg"));
    expectFailure({folder.put("empty.svg", ""), out(), "96", "96"}, 1, "cannot read " + folder.at("empty.svg"));
}

TEST_F(RasteriseIcon, RefusesColour)
{
    const std::string red = folder.put("red.svg", drawing(R"(<path d="M4 4h8v8h-8z" fill="#f00"/>)"));
    expectFailure({red, out(), "16", "16"}, 1, red + " has colour at pixel 4,4; an icon is black on transparent");
}

TEST_F(RasteriseIcon, KeepsColourWhereItIsAskedFor)
{
    const std::string red = folder.put("red.svg", drawing(R"(<path d="M4 4h8v8h-8z" fill="#f00"/>)"));
    ASSERT_EQ(runProgram({red, out(), "16", "16", "coloured"}).status, 0);
    const Icons::Icon icon = Icons::readFile(out());
    const auto pixel = icon.pixels.begin() + (8 * 16 + 8) * 4;
    EXPECT_EQ(std::vector<std::uint8_t>(pixel, pixel + 4), (std::vector<std::uint8_t>{255, 0, 0, 255}));
    EXPECT_EQ(icon.alpha(0, 0), 0);
}

TEST_F(RasteriseIcon, RefusesADrawingThatShowsNothing)
{
    const std::string blank = folder.put("blank.svg", drawing(""));
    expectFailure({blank, out(), "16", "16"}, 1, blank + " draws nothing; an icon is black");
    expectFailure({blank, out(), "16", "16", "coloured"}, 1, blank + " draws nothing; an icon is coloured");
}

TEST_F(RasteriseIcon, NamesAFileThatItCannotWrite)
{
    const std::string nowhere = folder.at("nowhere/out.png");
    expectFailure({alarm, nowhere, "96", "96"}, 1, "cannot write " + nowhere);
}

}
