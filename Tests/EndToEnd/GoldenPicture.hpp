// A new picture beside the one of its name in Tests/Golden, which someone has looked at.
#pragma once

#include "Tests/Support/Picture.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

inline const fs::path goldenFolder = LYR_GOLDEN_FOLDER;

/// Where a picture of that name is to be drawn. What is not the golden one stays there to be looked at.
inline fs::path newGoldenPicture(const std::string& name)
{
    const fs::path folder = fs::temp_directory_path() / "lyr-golden";
    fs::create_directories(folder);
    return folder / (name + ".png");
}

/// Keeps the new picture as the golden one if LYR_UPDATE_GOLDEN says so, as tools/update-golden does.
inline void expectGolden(const std::string& name, const fs::path& drawn)
{
    const fs::path golden = goldenFolder / (name + ".png");
    const auto now = Support::Picture::read(drawn);
    ASSERT_TRUE(now) << drawn << " cannot be read";
    if (const char* wish = std::getenv("LYR_UPDATE_GOLDEN"); wish && *wish) {
        ASSERT_TRUE(now->write(golden)) << golden << " cannot be written";
        return;
    }
    const auto before = Support::Picture::read(golden);
    ASSERT_TRUE(before) << golden << " is missing; the new picture is " << drawn
                        << ", and tools/update-golden keeps it";
    const Support::PictureTolerance tolerance;
    const double share = differingShare(*before, *now);
    if (share <= tolerance.share) {
        fs::remove(drawn);
        return;
    }
    const fs::path marked = newGoldenPicture(name + "-differences");
    differences(*before, *now).write(marked);
    ADD_FAILURE() << share * 100 << " % of the pixels of " << golden << " differ by more than " << tolerance.channel
                  << "; the new picture is " << drawn << ", white in " << marked
                  << " is what differs, and tools/update-golden keeps the new one";
}

inline std::string goldenTestName(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}
