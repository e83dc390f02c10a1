// A library in memory: bound to what it asks for, or refused with all that is missing.
#include "Simulator/Loader/MachOImage.hpp"
#include "Simulator/Loader/PhoneSymbols.hpp"
#include "Tests/MachO/LibraryBytes.hpp"

#include <gtest/gtest.h>

using Simulator::LoadError;
using Simulator::MachOFile;
using Simulator::MachOImage;

TEST(MachOImage, IsRefusedWithTheListOfAllThatIsMissing)
{
    const MachOFile file(bytesOfFile(PHONE_SLICE));
    static int anything;
    const auto resolve = [](const std::string& name) -> void* {
        return name == "_NSLog" || name == "_MSHookMessageEx" ? nullptr : &anything;
    };
    try {
        MachOImage image(file, resolve);
        FAIL() << "it was bound without a function that it needs";
    } catch (const LoadError& error) {
        EXPECT_STREQ(error.what(), "this phone has no _MSHookMessageEx, _NSLog");
    }
}

TEST(MachOImage, KeepsItsVariablesUnderTheirNames)
{
    const MachOFile file(bytesOfFile(PHONE_SLICE));
    static int anything;
    MachOImage image(file, [](const std::string&) -> void* { return &anything; });
    auto* label = static_cast<void**>(image.symbol("__ZN3LYR10_timeLabelE"));
    ASSERT_TRUE(label);
    EXPECT_EQ(*label, nullptr);
    *label = &anything;
    EXPECT_EQ(image.symbol("__ZN3LYR11noSuchLabelE"), nullptr);
    EXPECT_EQ(image.symbol("_objc_msgSend"), nullptr) << "what is imported is not exported";
}

TEST(MachOImage, APointerOutOfTheLibraryIsRefused)
{
    auto bytes = bytesOfFile(PHONE_SLICE);
    const auto rebase = MachOFile(bytes).rebases().at(0);
    // The segment that the pointer is in, by its place in the file.
    for (int i = 0;; ++i) {
        const auto command = commandOffset(bytes, segmentCommand, i);
        const auto address = numberAt(bytes, command + 24), size = numberAt(bytes, command + 32);
        if (rebase < address || rebase - address >= size)
            continue;
        setNumber(bytes, numberAt(bytes, command + 40) + rebase - address + 4, 1);
        break;
    }
    const MachOFile file(bytes);
    static int anything;
    EXPECT_THROW(MachOImage(file, [](const std::string&) -> void* { return &anything; }), LoadError);
}

TEST(PhoneSymbols, AreTheProgramsOwnOrThoseThatThisMachineLacks)
{
    EXPECT_EQ(Simulator::phoneSymbol("_strlen"), reinterpret_cast<void*>(std::strlen));
    EXPECT_TRUE(Simulator::phoneSymbol("_objc_msgSend"));
    EXPECT_EQ(Simulator::phoneSymbol("_noSuchFunction"), nullptr);
    EXPECT_EQ(Simulator::phoneSymbol("strlen"), nullptr);

    using Fill = void (*)(void*, const void*, std::size_t);
    char bytes[9] = "--------";
    reinterpret_cast<Fill>(Simulator::phoneSymbol("_memset_pattern4"))(bytes, "abcd", 7);
    EXPECT_STREQ(bytes, "abcdabc-");
    reinterpret_cast<Fill>(Simulator::phoneSymbol("_memset_pattern4"))(bytes, "wxyz", 0);
    EXPECT_STREQ(bytes, "abcdabc-");
}
