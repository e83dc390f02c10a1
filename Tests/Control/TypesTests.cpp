// What the kinds of values accept.
#include "Simulator/Control/Types.hpp"

#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Control;

namespace {

void expectAccepts(const Type& type, const std::vector<Json>& values)
{
    for (const Json& value : values)
        EXPECT_TRUE(type.accepts(value)) << type.takes << " should accept " << value;
}

void expectRefuses(const Type& type, const std::vector<Json>& values)
{
    for (const Json& value : values)
        EXPECT_FALSE(type.accepts(value)) << type.takes << " should refuse " << value;
}

}

TEST(Types, LocalTimesAreDatesThatExist)
{
    expectAccepts(localTime(), {"2020-11-15T21:41:00", "2020-02-29T00:00:00", "0001-01-01T23:59:59"});
    expectRefuses(localTime(),
        {"2021-02-29T00:00:00", "2020-11-15", "2020-11-15 21:41:00", "2020-11-15T24:00:00", "2020-13-01T00:00:00",
            "2020-11-15T21:60:00", "2020-11-15T21:41:60", "2020-11-15T21:41:00Z", "-020-11-15T21:41:00",
            "0000-01-01T00:00:00", "", 5, nullptr});
}

TEST(Types, TimeZonesAreKnownByName)
{
    expectAccepts(timeZone(), {"UTC", "Asia/Jerusalem", "America/New_York", "Pacific/Kiritimati", "GMT+3"});
    expectRefuses(timeZone(), {"", "Mars/Olympus", "Asia/Jerusalem ", "../../etc/passwd", 3});
}

TEST(Types, LocalesAreCheckedByTheirForm)
{
    expectAccepts(locale(),
        {"en", "en_US", "en-US", "zh-Hans", "zh_Hant_TW", "zh-Hans-CN", "en_US_POSIX", "ar_SA@calendar=islamic",
            "de@calendar=ethiopic-amete-alem;currency=EUR"});
    expectRefuses(locale(),
        {"", "e", "-", "_", "@", "en-", "en_", "-US", "en--US", "en-_US", "en@", "en@calendar", "en@=", "en US",
            "en/US", "12", "en-Überall", std::string(9, 'e'), std::string(200, 'e'), "en" + std::string(1'000'000, '-'),
            1});
}

TEST(Types, NumbersStayInTheirRange)
{
    expectAccepts(number(0, 1), {0, 1, 0.5});
    expectRefuses(number(0, 1), {-0.001, 1.001, "0.5", true, nullptr, 1e300});
    EXPECT_EQ(number(0, 0.5).takes, "a number from 0 to 0.5");
}

TEST(Types, WordsAreOfAList)
{
    expectAccepts(oneOf({"light", "dark"}), {"dark"});
    expectRefuses(oneOf({"light", "dark"}), {"Dark", "", 0});
    EXPECT_EQ(oneOf({"light", "dark"}).takes, "one of \"light\", \"dark\"");
}

TEST(Types, ScalarsAndPropertyListsHoldNeitherNullNorNul)
{
    const std::string nul("a\0b", 3);
    expectAccepts(scalar(), {"", 1, -1.5, true});
    expectRefuses(scalar(), {nullptr, Json::array(), Json::object(), nul});
    expectAccepts(propertyList(), {"x", {{"a", {1, "b", Json::object()}}}});
    expectRefuses(propertyList(), {nullptr, {{"a", {1, nullptr}}}, {{"a", nul}}, {{nul, 1}}});
}

TEST(Types, Base64IsWhole)
{
    expectAccepts(base64(), {"", "QQ==", "QUI=", "QUJD", "+/+/"});
    expectRefuses(base64(), {"Q", "QQ=", "====", "Q===", "QQ==QQ==", "Q Q=", "QU\nJ", 5});
}

TEST(Types, PhonePathsAreAbsolute)
{
    expectAccepts(phonePath(), {"/", "/Library/Application Support/LYRFont/"});
    expectRefuses(phonePath(), {"", "Library", std::string("/a\0b", 4)});
}

TEST(Types, HostPathsExist)
{
    const Support::TemporaryFolder folder;
    const std::string file = folder.put("a.jpg", "x");
    expectAccepts(hostFile("a JPEG"), {file});
    expectRefuses(hostFile("a JPEG"), {folder.path().string(), folder.at("b.jpg"), "", std::string(file + '\0')});
    expectAccepts(hostFolder(), {folder.path().string()});
    expectRefuses(hostFolder(), {file, folder.at("none")});
    expectAccepts(hostPath(), {file, folder.path().string()});
    expectRefuses(hostPath(), {folder.at("none")});
    EXPECT_EQ(hostFile("a JPEG").takes, "the host path of a JPEG that exists");
}

TEST(Types, AFolderMayBeAboutToBeMade)
{
    const Support::TemporaryFolder folder;
    std::filesystem::create_symlink("nowhere", folder.at("link"));
    expectAccepts(hostFolderToBe(), {folder.path().string(), folder.at("new"), folder.at("new/"), "relative"});
    expectRefuses(hostFolderToBe(), {folder.put("file", "x"), folder.at("none/new"), folder.at("link"), ""});
}

TEST(Types, DestinationsAreNames)
{
    expectAccepts(hostDestination(), {"/tmp/new.png", "relative.png"});
    expectRefuses(hostDestination(), {"", std::string("/a\0b", 4), 1});
}
