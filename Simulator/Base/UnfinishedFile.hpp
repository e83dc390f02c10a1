// A file that takes another's place in one step when it is complete, and leaves nothing behind when it never is.
#pragma once

#include "Simulator/Base/Descriptor.hpp"

#include <filesystem>
#include <string>

namespace Simulator {

class UnfinishedFile {
public:
    /// Made in the folder of the place that it is for. Where none can be made there is no file, and errno says why.
    explicit UnfinishedFile(std::filesystem::path place);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    explicit operator bool() const { return static_cast<bool>(m_file); }
    int descriptor() const { return m_file.number(); }
    /// 0, or the errno.
    int takePlace();

private:
    std::filesystem::path m_place;
    std::string m_name;
    Descriptor m_file;
};

}
