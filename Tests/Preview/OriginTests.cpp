// Who may ask for the page and the phone.
#include "Simulator/Preview/Origin.hpp"

#include <gtest/gtest.h>

using namespace Simulator::Preview;

TEST(Origin, TakesThisMachineByItsNamesAndThePort)
{
    for (const char* host : {"127.0.0.1:8080", "localhost:8080", "LocalHost:8080", "[::1]:8080"})
        EXPECT_TRUE(isOwnHost(host, 8080)) << host;
}

TEST(Origin, RefusesAnyOtherHost)
{
    for (const char* host : {"", "127.0.0.1", "localhost", "127.0.0.1:80", "127.0.0.1:80800", "example.com:8080",
             "localhost:8080.example.com", "127.0.0.1:8080 ", "::1:8080", "0.0.0.0:8080"})
        EXPECT_FALSE(isOwnHost(host, 8080)) << host;
}

TEST(Origin, NeedsNoPortWhereItIsTheUsualOne)
{
    EXPECT_TRUE(isOwnHost("localhost", 80));
    EXPECT_TRUE(isOwnHost("localhost:80", 80));
}

TEST(Origin, TakesThePageItselfAndProgramsThatAreNoBrowsers)
{
    EXPECT_TRUE(isOwnOrigin("http://127.0.0.1:8080", 8080));
    EXPECT_TRUE(isOwnOrigin("", 8080));
}

TEST(Origin, RefusesPagesOfOtherOrigins)
{
    for (const char* origin : {"null", "http://example.com", "http://example.com:8080", "https://127.0.0.1:8080",
             "127.0.0.1:8080", "http://127.0.0.1:8081", "http://127.0.0.1:8080/"})
        EXPECT_FALSE(isOwnOrigin(origin, 8080)) << origin;
}
