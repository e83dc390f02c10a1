// The control tests run against lyr with the fake phone.
#include <cstdlib>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    setenv("LYR_PROGRAM", FAKE_LYR_PATH, 1);
    testing::InitGoogleTest(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
