// Damaged and malicious property lists give nothing, and never a crash or a hang.
#include "Simulator/Text/PropertyList.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace Simulator;

namespace {

std::string repeated(std::string_view piece, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += piece;
    return text;
}

/// A binary list of one-byte offsets and references from the bytes of its objects.
std::string binary(const std::vector<std::string>& objects)
{
    std::string bytes = "bplist00";
    std::string offsets;
    for (const auto& object : objects) {
        offsets += static_cast<char>(bytes.size());
        bytes += object;
    }
    const char table = static_cast<char>(bytes.size());
    bytes += offsets + std::string(6, '\0') + "\x01\x01" + std::string(7, '\0') + static_cast<char>(objects.size())
        + std::string(15, '\0') + table;
    return bytes;
}

}

TEST(DamagedPropertyList, GivesNothing)
{
    for (const char* text : {"", " ", "\n\n", "hello world", "{", "{a=", "{a=1", "(1,2", "(1 2)", "<0", "<zz>",
             "<plist>", "<plist></plist>", "<plist/>", "<dict>", "<dict><key>a</key></dict>",
             "<dict><string>a</string></dict>", "<dict><key>a</key><string>b</string>", "<array><string>a</array>",
             "<integer>x</integer>", "<integer></integer>", "<integer>99999999999999999999</integer>",
             "<real>1,5</real>", "<data>!</data>", "<data>A</data>", "<unknown/>", "<string>&nope;</string>",
             "<string>&#x;</string>", "<true>x</true>", "<!--", "<?xml", "<!DOCTYPE [", "</dict>", "<", "\"open",
             "{\"a\\U\"=1;}", "bplist00", "bplist00garbage", "bplist", "\xff\xfe\x00\x00", "{\"name\": 1}", "[1, 2]"})
        EXPECT_FALSE(readPropertyList(text)) << text;
    EXPECT_FALSE(readPropertyList(std::string(100, '\0')));
    EXPECT_FALSE(readPropertyList("\"\xC3\x28\""));
}

TEST(DamagedPropertyList, IsRefusedWhenNestedTooDeep)
{
    constexpr int deep = 200000;
    EXPECT_FALSE(readPropertyList(repeated("(", deep)));
    EXPECT_FALSE(readPropertyList(repeated("{a=", deep)));
    EXPECT_FALSE(readPropertyList(repeated("<array>", deep)));
    EXPECT_FALSE(readPropertyList(repeated("<dict><key>a</key>", deep)));
    EXPECT_TRUE(readPropertyList(repeated("(", 500) + repeated(")", 500)));
    EXPECT_TRUE(readPropertyList(repeated("<array>", 500) + repeated("</array>", 500)));
}

TEST(DamagedPropertyList, BinaryThatHoldsItselfIsRefused)
{
    EXPECT_TRUE(readPropertyList(binary({"\xA1\x01", "\x09"})));
    using namespace std::string_literals;
    EXPECT_FALSE(readPropertyList(binary({"\xA1\0"s})));
    EXPECT_FALSE(readPropertyList(binary({"\xD1\x01\0"s, "\x51k"})));
    EXPECT_FALSE(readPropertyList(binary({"\xA1\x07"})));
    EXPECT_FALSE(readPropertyList(binary({"\xD1\x01\x01", "\x09"})));
}

TEST(DamagedPropertyList, BinaryThatUnfoldsWithoutEndIsRefused)
{
    std::vector<std::string> objects;
    for (int level = 1; level <= 40; ++level)
        objects.push_back(std::string("\xA2") + static_cast<char>(level) + static_cast<char>(level));
    objects.push_back("\x09");
    EXPECT_FALSE(readPropertyList(binary(objects)));
}

TEST(DamagedPropertyList, BinaryWithAbsurdLengthsIsRefused)
{
    using namespace std::string_literals;
    EXPECT_FALSE(readPropertyList(binary({"\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})));
    EXPECT_FALSE(readPropertyList(binary({"\x6F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})));
    EXPECT_FALSE(readPropertyList(binary({"\xAF\x12\x7F\xFF\xFF\xFF"})));
    EXPECT_FALSE(readPropertyList(binary({"\xDF\x13\x80\0\0\0\0\0\0\0"s})));
    EXPECT_FALSE(readPropertyList(binary({"\x5F"})));
    EXPECT_FALSE(readPropertyList(binary({"\x33"})));
    EXPECT_FALSE(readPropertyList(binary({"\x0F"})));
}

TEST(DamagedPropertyList, AnyDamagedByteIsSurvived)
{
    const PropertyList list{PropertyListDictionary{{"a", {PropertyListArray{{std::string("x")}, {1.5}, {true}}}},
        {"b", {PropertyListData{"bytes"}}}, {"c", {PropertyListDate{5}}}, {"d", {std::int64_t{70000}}}}};
    std::mt19937 random(7);
    for (const std::string& whole :
        {writeXmlPropertyList(list), writeBinaryPropertyList(list), std::string("{a=(1,\"x\");}")}) {
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(length + 10 < whole.size() && readPropertyList(whole.substr(0, length)) == list);
        for (int round = 0; round < 20000; ++round) {
            std::string damaged = whole;
            for (int byte = 0; byte < 3; ++byte)
                damaged[random() % damaged.size()] = static_cast<char>(random());
            if (const auto survivor = readPropertyList(damaged)) {
                EXPECT_EQ(readPropertyList(writeBinaryPropertyList(*survivor)).has_value(), true);
                EXPECT_EQ(readPropertyList(writeXmlPropertyList(*survivor)).has_value(), true);
            }
        }
    }
}
