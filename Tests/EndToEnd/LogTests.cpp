// What the extension says: to scripts in the records of the log, to people only when they ask for it.
#include "Tests/EndToEnd/Scenario.hpp"

#include <algorithm>

namespace {

constexpr const char* lato = "/usr/share/fonts/truetype/lato/Lato-Bold.ttf";
const std::string saidOfTheFont = "phone: Font path: /Library/Application Support/LYRFont/Lato-Bold.ttf\n";

/// A phone with a font, whose path the extension logs, and its log taken.
Support::Finished serve(const std::vector<std::string>& options)
{
    auto arguments = Support::servingArguments();
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Json start{{"jsonrpc", "2.0"}, {"id", 1}, {"method", "phone.start"},
        {"params", eveningPhone().fonts({lato}).parameters()}};
    const Json take{{"jsonrpc", "2.0"}, {"id", 2}, {"method", "log.take"}};
    return Support::runProgram(arguments, start.dump() + "\n" + take.dump() + "\n");
}

Support::Finished render(const std::string& picture, const std::vector<std::string>& options)
{
    std::vector<std::string> arguments{"render", "-o", picture, "--font", lato, "--screen", "375x812@1"};
    const auto serving = Support::servingArguments();
    arguments.insert(arguments.end(), serving.begin() + 2, serving.end());
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Support::runProgram(arguments);
}

}

TEST(Log, IsSilentOnStandardError)
{
    const auto finished = serve({});
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.errors, "");
    EXPECT_NE(finished.output.find("Font path: "), std::string::npos) << "the records have it";
}

TEST(Log, IsOnStandardErrorWhenThatIsAskedFor)
{
    const auto finished = serve({"--verbose"});
    EXPECT_NE(finished.errors.find(saidOfTheFont), std::string::npos) << finished.errors;
    EXPECT_NE(finished.output.find("Font path: "), std::string::npos) << "the records still have it";
}

TEST(Log, IsSilentAboutAPictureUnlessAskedFor)
{
    const Support::TemporaryFolder folder;
    EXPECT_EQ(render(folder.at("lock.png"), {}).errors, "");
    EXPECT_NE(render(folder.at("lock.png"), {"--verbose"}).errors.find(saidOfTheFont), std::string::npos);
}

TEST(Log, SaysHowManyRecordsWereForgotten)
{
    auto phone = eveningPhone().fonts({lato}).start();
    const Json taken = phone.call("log.take");
    EXPECT_FALSE(taken.at("records").empty());
    EXPECT_EQ(taken.at("dropped"), 0);
    EXPECT_EQ(phone.call("log.take"), (Json{{"records", Json::array()}, {"dropped", 0}}));
}

TEST(Log, GoesOnOverARestart)
{
    const auto start = eveningPhone().fonts({lato});
    const std::vector<Json> ofTheFirstProcess = start.start().takeLog();
    auto phone = start.start();
    phone.call("notify.post", {{"name", "com.ostrel.lyr/respring"}});
    phone.settle();
    ASSERT_EQ(phone.info().at("restarts"), 1);
    const Json taken = phone.call("log.take");
    EXPECT_EQ(taken.at("dropped"), 0);
    const std::vector<Json> records = taken.at("records");
    EXPECT_FALSE(ofTheFirstProcess.empty());
    ASSERT_GT(records.size(), ofTheFirstProcess.size());
    EXPECT_TRUE(std::equal(ofTheFirstProcess.begin(), ofTheFirstProcess.end(), records.begin()));
}
