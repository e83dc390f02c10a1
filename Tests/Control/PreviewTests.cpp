// `lyr preview` up to the phone: the folder that it keeps.
#include "Tests/Support/Program.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <csignal>
#include <gtest/gtest.h>

using namespace Support;

namespace {

class PreviewRoot : public testing::Test {
protected:
    /// Whether the preview comes up and keeps its phone in the folder.
    void expectPhoneIn(const std::string& root)
    {
        Program preview({"preview", "--root", root});
        EXPECT_TRUE(preview.read().value_or("nothing").starts_with("http://127.0.0.1:"));
        EXPECT_TRUE(std::filesystem::is_directory(root + "/var/mobile"));
        kill(preview.pid(), SIGTERM);
        EXPECT_EQ(preview.end(), 128 + SIGTERM);
        EXPECT_TRUE(std::filesystem::is_directory(root));
    }

    TemporaryFolder folder;
};

}

TEST_F(PreviewRoot, IsMadeWhereItIsMissing)
{
    expectPhoneIn(folder.at("my-phone"));
    expectPhoneIn(folder.at("my-phone"));
    expectPhoneIn(folder.at("other/"));
}

TEST_F(PreviewRoot, LiesInAFolderThatExists)
{
    const Finished finished = runProgram({"preview", "--root", folder.at("none/my-phone")});
    EXPECT_EQ(finished.status, 2);
    EXPECT_NE(finished.errors.find("none/my-phone"), std::string::npos);
    EXPECT_FALSE(folder.has("none"));
}
