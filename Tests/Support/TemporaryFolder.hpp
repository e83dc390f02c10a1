// A host folder for one test, with files that it puts there and reads.
#pragma once

#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Base/TemporaryFolder.hpp"

#include <filesystem>
#include <fstream>
#include <string>

namespace Support {

class TemporaryFolder : public Simulator::TemporaryFolder {
public:
    TemporaryFolder()
        : Simulator::TemporaryFolder("lyr-test")
    {
    }

    std::string at(const std::string& name) const { return (path() / name).string(); }
    bool has(const std::string& name) const { return std::filesystem::exists(path() / name); }

    /// Answers the path of the file.
    std::string put(const std::string& name, const std::string& bytes) const
    {
        std::filesystem::create_directories((path() / name).parent_path());
        std::ofstream(path() / name, std::ios::binary) << bytes;
        return at(name);
    }

    std::string read(const std::string& name) const { return Simulator::readHostFile(path() / name).value; }
};

}
