// A phone root in a temporary folder, gone when the test ends.
#pragma once

#include "Simulator/Files/PhoneFiles.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace Simulator {

struct TemporaryRoot : testing::Test {
    std::string outside; // a host folder that holds the root and what must stay out of reach
    std::string root;
    PhoneFiles files;

    void SetUp() override
    {
        std::string name = testing::TempDir() + "phone-XXXXXX";
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        outside = std::filesystem::canonical(name);
        root = outside + "/root";
        std::filesystem::create_directories(root);
        files.setRoot(root);
    }
    void TearDown() override { std::filesystem::remove_all(outside); }
};

}
