// The phone's extension loader: loads what lies in the extension folder into the shell process.
#pragma once

#include "Platform/ObjC/Hook.hpp"
#include "Product/VariableList.hpp"
#include "Simulator/Loader/LoadError.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Simulator {

class ExtensionLoader {
public:
    static constexpr const char* folder = "/Library/MobileSubstrate/DynamicLibraries/";
    /// Where a phone with a sealed system has it.
    static constexpr const char* sealedFolder = "/var/jb/Library/MobileSubstrate/DynamicLibraries/";

    static ExtensionLoader& shared();

    /// Loads every library in the folders whose filter names the shell: one of the phone's kind (.dylib), or else one
    /// of this machine's (.so). A library that cannot be loaded is reported and left out. Answers how many were loaded.
    using Report = std::function<void(const std::string& libraryPath, const LoadError&)>;
    int loadAll(const Report& = reportOnStandardError);
    static void reportOnStandardError(const std::string& libraryPath, const LoadError&);

    /// One of the process-wide variables that the libraries list; null if none has one of that name.
    const Product::VariableRow* variable(std::string_view name) const;

    /// The tables of interceptions that the libraries list, in the order of their installation.
    std::vector<ObjC::HookTable> hookTables() const;

    /// Says in a LoadError why a file of the host could not be loaded, as far as that can be known without running it.
    static void check(const std::string& hostPath);

private:
    /// Finds a library's symbol.
    using Symbols = std::function<void*(const std::string& name)>;

    int loadFolder(const std::string& folder, const Report&);

    std::vector<Symbols> m_libraries;
};

}
