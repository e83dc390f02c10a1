// Uses what the phone's C++ library gives: operators new and delete.
#include <memory>
#include <vector>

namespace LYR {
std::vector<int>* numbers = nullptr;
}

__attribute__((constructor)) static void start()
{
    auto owned = std::make_unique<std::vector<int>>();
    owned->push_back(1);
    LYR::numbers = owned.release();
}
