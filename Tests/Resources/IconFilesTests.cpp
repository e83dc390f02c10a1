// Every icon that the lock screen asks for: there, of its size, and fit to take any colour.
#include "Icon.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace {

using namespace Icons;

struct Size {
    int width;
    int height;
    bool operator==(const Size&) const = default;
    friend void PrintTo(const Size& size, std::ostream* out) { *out << size.width << "x" << size.height; }
};
using Set = std::map<std::string, Size>;

Set signs()
{
    Set set;
    for (const char* name : {"alarm", "calendar", "up", "down", "timer"})
        set[std::string("SS16/") + name] = {96, 96};
    return set;
}

Set gauges()
{
    Set set;
    for (const char* name : {"1", "a", "3", "c", "5", "e", "7", "g", "9", "i", "11", "k", "13", "m", "15", "o", "17",
             "q", "19", "s", "21", "u"})
        set[std::string("HL16/") + name] = {144, 144};
    return set;
}

Set batteries()
{
    Set set = {{"Battery16/phone", {96, 96}}, {"Battery16/Background", {432, 48}}};
    for (const char* name : {"BG", "ChargingBG", "bolt", "Bolt"})
        set[std::string("Battery16/") + name] = {96, 48};
    for (const int step : levelSteps) {
        set["Battery16/Battery" + std::to_string(step)] = {96, 48};
        set["Battery16/Charging" + std::to_string(step)] = {96, 48};
        set["Battery16/" + std::to_string(step)] = {432 * step / 100, 48};
    }
    return set;
}

bool isPartOfTheBar(const std::string& name)
{
    return name == "Battery16/Background"
        || name.find_first_not_of("0123456789", std::string("Battery16/").size()) == name.npos;
}

Set allIcons()
{
    Set set = signs();
    set.merge(gauges());
    set.merge(batteries());
    return set;
}

TEST(IconFiles, AreThoseThatTheLockScreenAsksForAndNoOthers)
{
    std::map<std::string, bool> found;
    for (const char* folder : {"SS16", "HL16", "Battery16"})
        for (const auto& entry : std::filesystem::directory_iterator(std::string(ICON_FOLDER "/") + folder))
            found[std::string(folder) + "/" + entry.path().filename().string()] = true;
    std::map<std::string, bool> expected;
    for (const auto& [name, size] : allIcons())
        expected[name + ".png"] = true;
    EXPECT_EQ(expected.size(), 90u);
    EXPECT_EQ(found, expected);
}

TEST(IconFiles, HaveTheirSizes)
{
    Set found;
    for (const auto& [name, size] : allIcons()) {
        const Icon icon = read(name);
        found[name] = {icon.width, icon.height};
    }
    EXPECT_EQ(found, allIcons());
}

TEST(IconFiles, AreBlackOnTransparent)
{
    for (const auto& [name, size] : allIcons()) {
        const Icon icon = read(name);
        EXPECT_TRUE(icon.hasTransparency) << name;
        bool isBlack = true;
        for (std::size_t i = 0; i < icon.pixels.size(); i += 4)
            isBlack = isBlack && icon.pixels[i] == 0 && icon.pixels[i + 1] == 0 && icon.pixels[i + 2] == 0;
        EXPECT_TRUE(isBlack) << name;
    }
}

TEST(IconFiles, ShowSomethingAndLeaveTheirCornersFree)
{
    for (const auto& [name, size] : allIcons()) {
        const Icon icon = read(name);
        EXPECT_GT(icon.ink(), 20) << name;
        for (const int x : {0, size.width - 1})
            for (const int y : {0, size.height - 1})
                EXPECT_EQ(icon.alpha(x, y), 0) << name << " at " << x << "," << y;
    }
}

// A line that runs over the edge is cut.
TEST(IconFiles, KeepClearOfTheirEdges)
{
    for (const auto& [name, size] : allIcons()) {
        if (isPartOfTheBar(name))
            continue; // which ends where its view does
        const Icon icon = read(name);
        int onTheEdge = 0;
        for (int x = 0; x < size.width; ++x)
            onTheEdge += icon.alpha(x, 0) + icon.alpha(x, size.height - 1);
        for (int y = 0; y < size.height; ++y)
            onTheEdge += icon.alpha(0, y) + icon.alpha(size.width - 1, y);
        EXPECT_EQ(onTheEdge, 0) << name;
    }
}

// The sun is the same; only the arrow turns.
TEST(IconFiles, TellSunriseFromSunset)
{
    const Icon up = read("SS16/up");
    const Icon down = read("SS16/down");
    EXPECT_NE(up.pixels, down.pixels);
    const std::size_t half = up.pixels.size() / 2;
    EXPECT_TRUE(std::equal(up.pixels.begin() + half, up.pixels.end(), down.pixels.begin() + half));
}

TEST(IconFiles, HoldTheSameBoltUnderBothNames)
{
    EXPECT_EQ(read("Battery16/bolt").pixels, read("Battery16/Bolt").pixels);
}

}
