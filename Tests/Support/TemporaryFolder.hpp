// A host folder for one test, removed with its owner.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace Support {

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "lyr-test-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot make a temporary folder");
        _path = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return _path; }
    std::string at(const std::string& name) const { return (_path / name).string(); }
    bool has(const std::string& name) const { return std::filesystem::exists(_path / name); }

    // Answers the path of the file.
    std::string put(const std::string& name, const std::string& bytes) const
    {
        std::filesystem::create_directories((_path / name).parent_path());
        std::ofstream(_path / name, std::ios::binary) << bytes;
        return at(name);
    }

    std::string read(const std::string& name) const
    {
        std::ifstream file(_path / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

private:
    std::filesystem::path _path;
};

}
