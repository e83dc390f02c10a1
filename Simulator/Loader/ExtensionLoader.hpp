// The phone's extension loader: loads what lies in the extension folder into the shell process.
#pragma once

#include <string>
#include <vector>

namespace Simulator {

class ExtensionLoader {
public:
    static constexpr const char* folder = "/Library/MobileSubstrate/DynamicLibraries/";

    static ExtensionLoader& shared();

    /// Loads every library in the folder whose filter names the shell. A library that cannot be loaded is reported on
    /// standard error and left out. Answers the number of libraries loaded.
    int loadAll();

    /// The address of one of the extension's process-wide variables; null if no library has one of that name.
    void* variable(const std::string& name) const;

private:
    bool load(const std::string& libraryPath);

    std::vector<void*> libraries_;
};

}
