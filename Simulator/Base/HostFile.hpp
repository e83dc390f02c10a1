// Files of the host, as a whole.
#pragma once

#include <filesystem>
#include <string>

namespace Simulator {

/// A value, or the errno that says why there is none.
template <typename T>
struct FileResult {
    T value{};
    int error = 0;
    explicit operator bool() const { return error == 0; }
};

FileResult<std::string> readHostFile(const std::filesystem::path& path);
/// What an open file holds from here on.
FileResult<std::string> readAll(int descriptor);

}
