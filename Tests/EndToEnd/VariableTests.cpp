// The process-wide variables of the extension, read by name.
#include "Tests/EndToEnd/Scenario.hpp"

#include <cstdlib>

TEST(Variables, AreReadByTheirTypes)
{
    auto phone = settledWith();
    EXPECT_EQ(phone.global("_timePress"), false);
    EXPECT_EQ(phone.global("_allowableMovement"), 100.0);
    EXPECT_EQ(phone.global("_initialSegmentCount"), 3);
    EXPECT_EQ(phone.global("_enabled"), true);
    EXPECT_EQ(phone.global("_timeLabel").at("id"), "_timeLabel");
}

TEST(Variables, ThatNobodyHasAreNotFound)
{
    constexpr int notFound = -32002;
    auto phone = settledWith();
    EXPECT_EQ(phone.errorCode("global.get", {{"name", "_noSuchVariable"}}), notFound);
}

TEST(Variables, OfATypeThatIsNotKnownAreAnError)
{
    if (std::getenv("LYR_PROGRAM"))
        GTEST_SKIP() << "the other extension is a library of this machine, which an emulated phone cannot load";
    constexpr int internal = -32603;
    const std::string folder = "/Library/MobileSubstrate/DynamicLibraries/";
    auto phone = settled(
        eveningPhone().file(folder + "Strange.so", LYR_STRANGE_VARIABLE).file(folder + "Strange.plist", LYR_FILTER));
    EXPECT_EQ(phone.errorCode("global.get", {{"name", "strangePoint"}}), internal);
    EXPECT_EQ(phone.global("_timePress"), false);
}
