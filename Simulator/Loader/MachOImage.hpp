// A dynamic library of the phone's kind in this process's memory, bound to the phone's functions.
#pragma once

#include "Simulator/Loader/MachOFile.hpp"

#include <functional>
#include <map>

namespace Simulator {

class MachOImage {
public:
    /// Where a symbol of the phone is; null if there is none of that name.
    using Resolve = std::function<void*(const std::string& symbol)>;

    /// Maps the library and binds it, and runs nothing of it. Throws a LoadError, which names all that is missing.
    MachOImage(const MachOFile&, const Resolve&);
    ~MachOImage();
    MachOImage(const MachOImage&) = delete;
    MachOImage& operator=(const MachOImage&) = delete;

    /// Runs the functions that start the library. It stays in memory from then on.
    void start();
    /// The address of an exported symbol; null if it has none of that name.
    void* symbol(const std::string& name) const;

private:
    void copySegments(const MachOFile&);
    void rebase(const MachOFile&);
    void bind(const MachOFile&, const Resolve&);
    void findInitialisers(const MachOFile&);
    void protect(const MachOFile&);

    char* m_memory = nullptr;
    std::uint64_t m_span = 0;
    std::vector<void (*)()> m_initialisers;
    std::map<std::string, void*> m_exports;
    bool m_isStarted = false;
};

}
