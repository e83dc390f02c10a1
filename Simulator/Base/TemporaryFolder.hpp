// A folder of the host for what is made on the way, removed with its owner.
#pragma once

#include <filesystem>
#include <string>

namespace Simulator {

class TemporaryFolder {
public:
    /// Throws a std::system_error.
    explicit TemporaryFolder(const std::string& name = "lyr");
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

}
