// JSON-RPC requests and their answers.
#include "Simulator/Control/Envelope.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Control;

namespace {

/// Answers with the method and its parameters; "refuse" and "break" fail.
Json echo(const std::string& method, const Json& parameters)
{
    if (method == "refuse")
        throw ProtocolError(ErrorCode::notFound, "nothing there");
    if (method == "break")
        throw std::runtime_error("broken");
    return {{"method", method}, {"params", parameters}};
}

Json replyTo(const std::string& line)
{
    const auto reply = answerLine(line, echo);
    return reply ? Json::parse(*reply) : Json("no reply");
}

int errorOf(const std::string& line)
{
    return replyTo(line).at("error").at("code");
}

}

TEST(Envelope, AnswersARequestWithItsResultAndId)
{
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","id":7,"method":"a.b","params":{"x":1}})"),
        Json::parse(R"({"jsonrpc":"2.0","id":7,"result":{"method":"a.b","params":{"x":1}}})"));
}

TEST(Envelope, GivesAMethodWithoutParametersAnEmptyObject)
{
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","id":1,"method":"a"})")["result"]["params"], Json::object());
}

TEST(Envelope, EchoesStringNumberAndNullIds)
{
    for (const Json& id : {Json("abc"), Json(-3), Json(1.5), Json(18446744073709551615ull), Json(nullptr)}) {
        const Json reply = replyTo(toLine({{"jsonrpc", "2.0"}, {"id", id}, {"method", "a"}}));
        EXPECT_EQ(reply.at("id"), id);
        EXPECT_TRUE(reply.contains("result"));
    }
}

TEST(Envelope, DoesNotAnswerNotifications)
{
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","method":"a"})"), "no reply");
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","method":"refuse"})"), "no reply");
}

TEST(Envelope, RunsNotifications)
{
    std::string called;
    answerLine(R"({"jsonrpc":"2.0","method":"ring"})", [&](const std::string& method, const Json&) {
        called = method;
        return Json::object();
    });
    EXPECT_EQ(called, "ring");
}

TEST(Envelope, CallsBadJsonBadJson)
{
    for (const char* line :
        {"", " ", "{", "nul", "{\"a\":}", "{} {}", "\"\\ud800\"", "\"\xC3\x28\"", "{\"a\":1e999}", "\xFF"})
        EXPECT_EQ(errorOf(line), -32700) << line;
    EXPECT_EQ(replyTo("{").at("id"), nullptr);
}

TEST(Envelope, RefusesWhatIsNoRequest)
{
    for (const char* line : {"1", "null", "\"a\"", "{}", R"({"jsonrpc":"2.0","id":1})",
             R"({"jsonrpc":"2.0","id":1,"method":5})", R"({"id":1,"method":"a"})",
             R"({"jsonrpc":"1.0","id":1,"method":"a"})", R"({"jsonrpc":"2.0","id":[1],"method":"a"})",
             R"({"jsonrpc":"2.0","id":true,"method":"a"})", R"({"jsonrpc":"2.0","id":1,"method":"a","params":3})"})
        EXPECT_EQ(errorOf(line), -32600) << line;
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","id":"x"})").at("id"), "x");
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","id":{},"method":"a"})").at("id"), nullptr);
}

TEST(Envelope, TakesParametersByNameOnly)
{
    EXPECT_EQ(errorOf(R"({"jsonrpc":"2.0","id":1,"method":"a","params":[1]})"), -32602);
}

TEST(Envelope, PassesOnTheErrorOfAMethod)
{
    EXPECT_EQ(replyTo(R"({"jsonrpc":"2.0","id":1,"method":"refuse"})"),
        Json::parse(R"({"jsonrpc":"2.0","id":1,"error":{"code":-32002,"message":"nothing there"}})"));
    EXPECT_EQ(errorOf(R"({"jsonrpc":"2.0","id":1,"method":"break"})"), -32603);
}

TEST(Envelope, AnswersABatchInItsOrderWithoutTheNotifications)
{
    const Json replies = replyTo(
        R"([{"jsonrpc":"2.0","id":1,"method":"a"},{"jsonrpc":"2.0","method":"b"},3,{"jsonrpc":"2.0","id":2,"method":"refuse"}])");
    ASSERT_EQ(replies.size(), 3u);
    EXPECT_EQ(replies[0]["result"]["method"], "a");
    EXPECT_EQ(replies[1]["error"]["code"], -32600);
    EXPECT_EQ(replies[2]["error"]["code"], -32002);
}

TEST(Envelope, DoesNotAnswerABatchOfNotifications)
{
    EXPECT_EQ(replyTo(R"([{"jsonrpc":"2.0","method":"a"}])"), "no reply");
}

TEST(Envelope, RefusesAnEmptyBatchWithOneError)
{
    EXPECT_EQ(errorOf("[]"), -32600);
}

TEST(Envelope, SurvivesDeepNesting)
{
    const std::size_t depth = 1000000;
    EXPECT_EQ(errorOf(std::string(depth, '[')), -32700);
    EXPECT_EQ(errorOf(std::string(depth, '[') + std::string(depth, ']')), -32600);
    std::string objects;
    for (std::size_t i = 0; i < depth; ++i)
        objects += "{\"a\":";
    EXPECT_EQ(errorOf(objects), -32700);
}

TEST(Envelope, DoesNotMistakeBracketsInTextForNesting)
{
    const std::string brackets(1000, '[');
    const Json reply = replyTo(R"({"jsonrpc":"2.0","id":1,"method":"a","params":{"x":"\")" + brackets + R"("}})");
    EXPECT_EQ(reply.at("result").at("params").at("x"), "\"" + brackets);
}

TEST(Envelope, WritesOneLineOfUtf8WhateverTheTextHolds)
{
    EXPECT_EQ(toLine("a\nb\xFFz\xC3\xA9"), "\"a\\nb\xEF\xBF\xBDz\xC3\xA9\"");
}

TEST(Envelope, QuotesLongValuesShortly)
{
    EXPECT_EQ(quote("short"), "\"short\"");
    EXPECT_LT(quote(std::string(1000, 'x')).size(), 100u);
    EXPECT_EQ(quote(Json(std::vector<int>(1000))), "a long list");
    std::string accents = "x";
    for (int i = 0; i < 100; ++i)
        accents += "é";
    EXPECT_EQ(toLine(quote(accents)).find("\xEF\xBF\xBD"), std::string::npos);
}
