// `--extension FILE`: what can be loaded is, and what cannot be ends the program with one line.
#include "Tests/MachO/LibraryBytes.hpp"
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using Support::Finished;
using Support::runProgram;
using testing::HasSubstr;

namespace {

struct ExtensionOption : testing::Test {
    Support::TemporaryFolder folder;

    Finished render(const std::string& extension, const std::string& picture)
    {
        return runProgram(
            {"render", "--time", "2020-11-15T21:41:00", "--extension", extension, "-o", folder.at(picture)});
    }

    void expectRefusal(const std::string& extension, const std::string& reason)
    {
        for (const Finished& finished : {render(extension, "refused.png"),
                 runProgram({"serve", "--stdio", "--extension", extension},
                     R"({"jsonrpc":"2.0","id":1,"method":"phone.start"})")}) {
            EXPECT_EQ(finished.status, 1);
            EXPECT_EQ(std::count(finished.errors.begin(), finished.errors.end(), '\n'), 1) << finished.errors;
            EXPECT_THAT(finished.errors, HasSubstr("lyr: " + extension + ": cannot be loaded: "));
            EXPECT_THAT(finished.errors, HasSubstr(reason));
            EXPECT_EQ(finished.output, "");
        }
        EXPECT_FALSE(folder.has("refused.png"));
    }
};

}

TEST_F(ExtensionOption, EveryFormOfTheExtensionDrawsTheSamePicture)
{
    ASSERT_EQ(runProgram({"render", "--time", "2020-11-15T21:41:00", "-o", folder.at("own.png")}).status, 0);
    const auto own = bytesOfFile(folder.at("own.png"));
    for (const char* extension : {LINUX_LIBRARY, PHONE_SLICE, PHONE_LIBRARY}) {
        const auto finished = render(extension, "picture.png");
        EXPECT_EQ(finished.status, 0) << finished.errors;
        EXPECT_TRUE(bytesOfFile(folder.at("picture.png")) == own) << extension;
    }
}

TEST_F(ExtensionOption, WhatIsNoLibraryIsRefused)
{
    expectRefusal(folder.at("absent"), "it cannot be read");
    expectRefusal(folder.path().string(), "it is not a file");
    expectRefusal(folder.put("empty", ""), "it cannot be read, or is empty");
    expectRefusal(
        folder.put("text", "no library at all"), "neither a library of this machine (ELF) nor one of the phone's");
    expectRefusal(OTHER_SLICE, "it is for arm64");
}

TEST_F(ExtensionOption, ALibraryThatAsksForWhatThisPhoneLacksIsRefusedWithTheName)
{
    auto bytes = bytesOfFile(PHONE_SLICE);
    for (std::size_t at = bytes.find("_MSHookMessageEx"); at != bytes.npos; at = bytes.find("_MSHookMessageEx"))
        bytes[at + 1] = 'Q';
    expectRefusal(folder.put("renamed.dylib", bytes), "this phone has no _QSHookMessageEx");
}

TEST_F(ExtensionOption, ASpoiltLibraryIsRefused)
{
    const auto bytes = bytesOfFile(PHONE_LIBRARY);
    expectRefusal(folder.put("half.dylib", bytes.substr(0, bytes.size() / 4)), "lies outside the file");
}
