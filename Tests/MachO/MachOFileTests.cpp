// What the loader says of a file that it cannot take: one reason each.
#include "Simulator/Loader/MachOFile.hpp"
#include "Tests/MachO/LibraryBytes.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using Simulator::LoadError;
using Simulator::MachOFile;
using testing::HasSubstr;

namespace {

std::string reasonAgainst(const std::string& bytes)
{
    try {
        MachOFile file(bytes);
        return "";
    } catch (const LoadError& error) {
        return error.what();
    }
}

std::string reasonAfter(const std::function<void(std::string&)>& spoil)
{
    auto bytes = bytesOfFile(PHONE_SLICE);
    spoil(bytes);
    return reasonAgainst(bytes);
}

/// Where a table of the link data begins: 0 for rebases, 1 for binds, 3 for lazy binds.
std::size_t tableOffset(const std::string& bytes, int table)
{
    return numberAt(bytes, commandOffset(bytes, fixupsCommand) + 8 + 8 * table);
}

}

TEST(MachOFile, ThinAndJoinedLibrariesAreTheSameToTheReader)
{
    MachOFile thin(bytesOfFile(PHONE_SLICE));
    MachOFile joined(bytesOfFile(PHONE_LIBRARY));
    EXPECT_EQ(thin.span(), joined.span());
    EXPECT_EQ(thin.rebases(), joined.rebases());
    EXPECT_EQ(thin.binds().size(), joined.binds().size());
    EXPECT_GT(thin.binds().size(), 50u);
    EXPECT_EQ(thin.initialisers().size(), 1u);
    EXPECT_GT(thin.exports().size(), 50u);
}

TEST(MachOFile, ALibraryForAnotherProcessorIsRefusedByName)
{
    EXPECT_EQ(reasonAgainst(bytesOfFile(OTHER_SLICE)), "it is for arm64, and this machine takes x86_64 only");
    auto joined = bytesOfFile(PHONE_LIBRARY);
    const auto slices = __builtin_bswap32(numberAt(joined, 4));
    for (unsigned i = 0; i < slices; ++i)
        setNumber(joined, 8 + 20 * i, __builtin_bswap32(0x0100000c));
    EXPECT_EQ(reasonAgainst(joined), "it is for arm64, arm64, and this machine takes x86_64 only");
}

TEST(MachOFile, AFileOfAnotherKindIsRefused)
{
    EXPECT_THAT(reasonAgainst(""), HasSubstr("the file ends too early"));
    EXPECT_THAT(reasonAgainst("abc"), HasSubstr("the file ends too early"));
    EXPECT_THAT(reasonAgainst("no library at all, but long enough to be one"), HasSubstr("not a dynamic library"));
    EXPECT_THAT(reasonAfter([](std::string& bytes) { setNumber(bytes, 12, 2); }), HasSubstr("no dynamic library"));
}

TEST(MachOFile, ALibraryThatIsCutOffAnywhereIsRefused)
{
    const auto whole = bytesOfFile(PHONE_SLICE);
    for (std::size_t size = 0; size < whole.size(); size += size < 4096 ? 1 : 4093)
        ASSERT_NE(reasonAgainst(whole.substr(0, size)), "") << "cut off after " << size << " bytes";
}

TEST(MachOFile, WhatLiesOutsideTheFileIsNamed)
{
    EXPECT_THAT(
        reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, segmentCommand, 1) + 40, 1 << 30); }),
        HasSubstr("a segment lies outside the file"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, segmentCommand) + 28, 1 << 30); }),
        HasSubstr("a segment lies at an impossible address"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, segmentCommand, 1) + 24, 0); }),
        HasSubstr("a section lies outside its segment"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, symbolTableCommand) + 12, ~0u); }),
        HasSubstr("the symbol table lies outside the file"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, fixupsCommand) + 16, ~0u); }),
        HasSubstr("the bind table lies outside the file"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, 20, ~0u); }),
        HasSubstr("the list of load commands lies outside the file"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, 36, 4); }), HasSubstr("the impossible size 4"));
}

TEST(MachOFile, ALibraryThatAPhoneWouldNotTakeIsNotTakenHere)
{
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, signatureCommand), 0x26); }),
        HasSubstr("it is not signed"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, platformCommand) + 8, 1); }),
        HasSubstr("built for another system"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, fixupsCommand), 0x80000034); }),
        HasSubstr("chained fixups"));
    EXPECT_THAT(reasonAfter([](auto& bytes) { setNumber(bytes, commandOffset(bytes, fixupsCommand), 0x800000ff); }),
        HasSubstr("a load command that is unknown here"));
}

TEST(MachOFile, BadCodesInTheLinkDataAreRefused)
{
    const auto withCodes = [](int table, const std::string& codes) {
        return reasonAfter([&](auto& bytes) { bytes.replace(tableOffset(bytes, table), codes.size(), codes); });
    };
    EXPECT_THAT(withCodes(0, "\xf0"), HasSubstr("the rebase table holds the unknown code 240"));
    EXPECT_THAT(withCodes(1, "\xd0"), HasSubstr("the bind table holds the unknown code 208"));
    EXPECT_THAT(withCodes(0, "\x12"), HasSubstr("something that is no pointer"));
    EXPECT_THAT(withCodes(0, "\x2f\x01"), HasSubstr("names segment 15, which there is not"));
    EXPECT_THAT(withCodes(0, std::string("\x20\x00\x51", 3)), HasSubstr("a place that is not in a writable segment"));
    EXPECT_THAT(withCodes(1, "\x90"), HasSubstr("a place that is not in a writable segment"));
    EXPECT_THAT(withCodes(1, std::string("\x72\x00\x90", 3)), HasSubstr("binds a pointer to nothing"));
    const std::string endless("\xff\xff\xff\xff\xff\xff\xff\xff\xff\x01", 10);
    EXPECT_THAT(withCodes(0, std::string("\x22\x00\x60", 3) + endless), HasSubstr("a place that is not in a writable"));
    // The same pointer again and again: eight forward, eight back.
    const std::string back("\xf8\xff\xff\xff\xff\xff\xff\xff\xff\x01", 10);
    EXPECT_THAT(
        withCodes(0, std::string("\x22\x00\x80", 3) + endless + back), HasSubstr("more pointers than there are"));
    EXPECT_THAT(withCodes(0, std::string("\x22\xff\xff\xff\xff\xff\xff\xff\xff\xff\x7f", 11)), HasSubstr("too large"));
}
