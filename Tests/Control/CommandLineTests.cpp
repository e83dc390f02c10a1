// The command line of lyr.
#include "Tests/Support/Program.hpp"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Support;

namespace {

void expectBadUsage(const std::vector<std::string>& arguments, const std::string& culprit)
{
    const Finished finished = runProgram(arguments);
    EXPECT_EQ(finished.status, 2) << finished.errors;
    EXPECT_EQ(finished.output, "");
    EXPECT_EQ(std::count(finished.errors.begin(), finished.errors.end(), '\n'), 1) << finished.errors;
    EXPECT_NE(finished.errors.find(culprit), std::string::npos) << finished.errors;
}

}

TEST(CommandLine, SaysEverythingOnHelp)
{
    const Finished finished = runProgram({"--help"});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.errors, "");
    for (const char* word : {"render", "serve", "--stdio", "--settings", "--colours", "--wallpaper", "--screen",
             "--time", "--time-zone", "--locale", "--language", "--style", "--font", "--device", "--bare", "--strict",
             "--system", "--verbose", "-o", "--version", "WxH@S"})
        EXPECT_NE(finished.output.find(word), std::string::npos) << word;
    EXPECT_EQ(finished.output.find("--fd"), std::string::npos);
}

TEST(CommandLine, SaysItsVersion)
{
    const Finished finished = runProgram({"--version"});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.output.substr(0, 4), "lyr ");
    EXPECT_TRUE(isdigit(finished.output.at(4)));
}

TEST(CommandLine, RefusesBadUsageInOneLine)
{
    expectBadUsage({}, "a command, render, preview, look or serve, is required");
    expectBadUsage({"rendre"}, "rendre");
    expectBadUsage({"serve"}, "--stdio");
    expectBadUsage({"serve", "--stdio", "extra"}, "extra");
    expectBadUsage({"render"}, "--output");
    expectBadUsage({"render", "-o"}, "--output");
    expectBadUsage({"render", "-o", "a.png", "--time", "noon"}, "noon");
    expectBadUsage({"render", "-o", "a.png", "--time-zone", "Mars/Olympus"}, "Mars/Olympus");
    expectBadUsage({"render", "-o", "a.png", "--style", "grey"}, "grey");
    expectBadUsage({"render", "-o", "a.png", "--system", "12.0"}, "12.0");
    expectBadUsage({"render", "-o", "a.png", "--language", "e"}, "\"e\"");
    expectBadUsage({"render", "-o", "a.png", "--bare", "--device", "d.json"}, "--bare");
    expectBadUsage({"preview", "--device", "d.json", "--bare"}, "--bare");
    for (const char* locale : {"-", "en-", "en--US"})
        expectBadUsage({"render", "-o", "a.png", "--locale", locale}, locale);
    expectBadUsage({"preview", "--root", "/none/phone"}, "/none/phone");
    expectBadUsage({"preview", "--root", "/dev/null"}, "/dev/null");
    for (const char* screen : {"375", "375x812", "0x812@3", "375x812@9", "375x812@3x", "x@"})
        expectBadUsage({"render", "-o", "a.png", "--screen", screen}, screen);
}
