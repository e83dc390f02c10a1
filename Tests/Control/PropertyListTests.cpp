// Property lists as the phone stores them.
#include "Simulator/Control/PropertyList.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Control;

TEST(PropertyList, IsWrittenAsXml)
{
    EXPECT_EQ(propertyListXml({{"enabled", true}, {"off", false}, {"number", -5}, {"real", 0.5},
                  {"text", "<é & \xF0\x9F\x98\x80>"}, {"list", {1, "a"}}}),
        R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>enabled</key>
	<true/>
	<key>list</key>
	<array>
		<integer>1</integer>
		<string>a</string>
	</array>
	<key>number</key>
	<integer>-5</integer>
	<key>off</key>
	<false/>
	<key>real</key>
	<real>0.5</real>
	<key>text</key>
	<string>&lt;é &amp; 😀&gt;</string>
</dict>
</plist>
)");
}

TEST(PropertyList, IsToldFromOtherFilesByItsBytes)
{
    EXPECT_TRUE(isPropertyListDictionary(propertyListXml({{"a", 1}})));
    EXPECT_TRUE(isPropertyListDictionary(propertyListXml(Json::object())));
    // A binary one with an empty dictionary.
    const std::string binary(
        "bplist00\xD0\x08\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x09", 42);
    EXPECT_TRUE(isPropertyListDictionary(binary));
    EXPECT_FALSE(isPropertyListDictionary(propertyListXml({1, 2})));
    EXPECT_FALSE(isPropertyListDictionary(binary.substr(0, 30)));
    for (const char* bytes : {"", "{}", "{\"a\":1}", "hello", "<plist>", "<html></html>", "bplist00"})
        EXPECT_FALSE(isPropertyListDictionary(bytes)) << bytes;
}
