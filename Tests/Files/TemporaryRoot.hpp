// A phone root in a temporary folder, gone when the test ends.
#pragma once

#include "Simulator/Base/TemporaryFolder.hpp"
#include "Simulator/Files/PhoneFiles.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace Simulator {

struct TemporaryRoot : testing::Test {
    const TemporaryFolder folder;
    std::string outside; // a host folder that holds the root and what must stay out of reach
    std::string root;
    PhoneFiles files;

    void SetUp() override
    {
        outside = std::filesystem::canonical(folder.path());
        root = outside + "/root";
        std::filesystem::create_directories(root);
        files.setRoot(root);
    }
};

}
