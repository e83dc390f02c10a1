// Thousands of slightly spoilt libraries: each is mapped and bound, or refused for a reason, and none does harm.
#include "Simulator/Loader/MachOImage.hpp"
#include "Tests/MachO/LibraryBytes.hpp"

#include <gtest/gtest.h>

#include <random>

using Simulator::LoadError;
using Simulator::MachOFile;
using Simulator::MachOImage;

namespace {

constexpr int mutants = 3000;

struct Counts {
    int taken = 0;
    int refused = 0;
};

void* anything(const std::string&)
{
    static char place[8];
    return place;
}

/// Spoils up to four bytes in the given part of the library, a thousand times and more.
Counts tryMutants(const std::string& original, std::size_t begin, std::size_t end)
{
    std::mt19937 random(20201115);
    Counts counts;
    for (int i = 0; i < mutants; ++i) {
        std::string bytes = original;
        for (auto left = 1 + random() % 4; left > 0; --left) {
            const auto position = begin + random() % (end - begin);
            constexpr unsigned char edges[] = {0, 1, 0x7f, 0x80, 0xff};
            bytes[position] = static_cast<char>(random() % 2 ? random() : edges[random() % std::size(edges)]);
        }
        try {
            const MachOFile file(std::move(bytes));
            const MachOImage image(file, anything);
            ++counts.taken;
        } catch (const LoadError& error) {
            EXPECT_EQ(std::string(error.what()).find('\n'), std::string::npos);
            ++counts.refused;
        }
    }
    return counts;
}

}

TEST(Mutation, HeadersAndLoadCommands)
{
    const auto library = bytesOfFile(PHONE_SLICE);
    const auto counts = tryMutants(library, 0, 32 + numberAt(library, 20));
    EXPECT_GT(counts.refused, mutants / 10);
    EXPECT_GT(counts.taken, mutants / 10);
}

TEST(Mutation, TheListOfSlices)
{
    const auto counts = tryMutants(bytesOfFile(PHONE_LIBRARY), 0, 8 + 2 * 20);
    EXPECT_GT(counts.refused, mutants / 10);
    EXPECT_GT(counts.taken, mutants / 10);
}

TEST(Mutation, LinkData)
{
    const auto library = bytesOfFile(PHONE_SLICE);
    const auto fixups = commandOffset(library, fixupsCommand);
    const auto counts = tryMutants(
        library, numberAt(library, fixups + 8), numberAt(library, fixups + 32) + numberAt(library, fixups + 36));
    EXPECT_GT(counts.refused, mutants / 10);
    EXPECT_GT(counts.taken, mutants / 10);
}
