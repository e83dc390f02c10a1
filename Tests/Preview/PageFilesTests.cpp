// Which files the page has.
#include "Simulator/Preview/PageFiles.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Preview;

namespace {

class PageFiles : public testing::Test {
protected:
    PageFiles()
    {
        folder.put("page/index.html", "<p>");
        folder.put("page/main.js", "1");
        folder.put("page/.hidden", "secret");
        folder.put("page/below/other.js", "2");
        folder.put("secret.js", "3");
    }
    std::optional<PageFile> file(const std::string& target) { return pageFile(folder.path() / "page", target); }

    Support::TemporaryFolder folder;
};

}

TEST_F(PageFiles, AreServedWithTheirType)
{
    EXPECT_EQ(file("/main.js")->bytes, "1");
    EXPECT_EQ(file("/main.js")->type, "text/javascript; charset=utf-8");
    EXPECT_EQ(file("/main.js?v=2")->bytes, "1");
}

TEST_F(PageFiles, StartWithTheIndex)
{
    EXPECT_EQ(file("/")->bytes, "<p>");
    EXPECT_EQ(file("/")->type, "text/html; charset=utf-8");
}

TEST_F(PageFiles, AreNothingElse)
{
    for (const char* target : {"", "main.js", "/main", "/.hidden", "/below/other.js", "/below", "/../secret.js",
             "/..%2fsecret.js", "//main.js", "/./main.js", "/main.js/"})
        EXPECT_FALSE(file(target)) << target;
}

TEST(PageFolder, MayBeMissing)
{
    EXPECT_FALSE(pageFile("/none", "/"));
}

TEST(ContentSecurityPolicy, LetsThePageLoadFromItsHostOnly)
{
    const std::string policy = contentSecurityPolicy("127.0.0.1:8080");
    EXPECT_TRUE(policy.starts_with("default-src 'none'; script-src 'self'; style-src 'self';"));
    EXPECT_NE(policy.find("connect-src 'self' ws://127.0.0.1:8080;"), std::string::npos);
    EXPECT_EQ(policy.find("unsafe"), std::string::npos);
}
