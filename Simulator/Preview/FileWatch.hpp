// Tells when files of a folder of the host have been written or replaced.
#pragma once

#include "Simulator/Base/Descriptor.hpp"

#include <string>
#include <vector>

namespace Simulator::Preview {

class FileWatch {
public:
    /// Throws where the folder cannot be watched.
    FileWatch(const std::string& folder, std::vector<std::string> names);

    /// Readable when something happened in the folder.
    int descriptor() const { return m_inotify.number(); }
    /// Whether it happened to one of the files since the last call.
    bool tookPlace() const;

private:
    Descriptor m_inotify;
    std::vector<std::string> m_names;
};

}
