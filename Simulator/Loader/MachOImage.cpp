// Mapping, adjusting and binding of a library, and the run of its initialisers.
#include "Simulator/Loader/MachOImage.hpp"

#include <sys/mman.h>

#include <cerrno>
#include <cstring>
#include <set>

namespace Simulator {

namespace {

std::string listed(const std::set<std::string>& symbols)
{
    std::string list;
    for (const auto& symbol : symbols)
        list += (list.empty() ? "" : ", ") + symbol;
    return list;
}

}

MachOImage::MachOImage(const MachOFile& file, const Resolve& resolve)
    : m_span(file.span())
{
    void* memory = mmap(nullptr, m_span, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw LoadError(std::string("no memory for it: ") + std::strerror(errno));
    m_memory = static_cast<char*>(memory);
    try {
        copySegments(file);
        rebase(file);
        bind(file, resolve);
        findInitialisers(file);
        protect(file);
    } catch (...) {
        munmap(m_memory, m_span);
        throw;
    }
    for (const auto& exported : file.exports())
        m_exports.emplace(exported.symbol, m_memory + exported.address);
}

MachOImage::~MachOImage()
{
    if (!m_isStarted)
        munmap(m_memory, m_span);
}

void MachOImage::start()
{
    m_isStarted = true;
    for (const auto initialise : m_initialisers)
        initialise();
}

void* MachOImage::symbol(const std::string& name) const
{
    const auto found = m_exports.find(name);
    return found == m_exports.end() ? nullptr : found->second;
}

void MachOImage::copySegments(const MachOFile& file)
{
    for (const auto& segment : file.segments())
        if (!segment.content.empty())
            std::memcpy(m_memory + segment.address, segment.content.data(), segment.content.size());
}

/// Pointers into the library itself were written as if it lay at address 0.
void MachOImage::rebase(const MachOFile& file)
{
    for (const auto address : file.rebases()) {
        std::uint64_t pointer;
        std::memcpy(&pointer, m_memory + address, sizeof pointer);
        if (pointer >= m_span)
            throw LoadError("one of its pointers into itself leads outside");
        pointer += reinterpret_cast<std::uint64_t>(m_memory);
        std::memcpy(m_memory + address, &pointer, sizeof pointer);
    }
}

void MachOImage::bind(const MachOFile& file, const Resolve& resolve)
{
    std::set<std::string> missing;
    for (const auto& bind : file.binds()) {
        auto* target = static_cast<char*>(resolve(bind.symbol));
        if (!target && !bind.isOptional)
            missing.insert(bind.symbol);
        const std::uint64_t pointer = target ? reinterpret_cast<std::uint64_t>(target) + bind.addend : 0;
        std::memcpy(m_memory + bind.address, &pointer, sizeof pointer);
    }
    if (!missing.empty())
        throw LoadError("this phone has no " + listed(missing));
}

void MachOImage::findInitialisers(const MachOFile& file)
{
    for (const auto& range : file.initialisers()) {
        for (std::uint64_t offset = 0; offset + sizeof(std::uint64_t) <= range.size; offset += sizeof(std::uint64_t)) {
            std::uint64_t pointer;
            std::memcpy(&pointer, m_memory + range.address + offset, sizeof pointer);
            const std::uint64_t address = pointer - reinterpret_cast<std::uint64_t>(m_memory);
            bool isCode = false;
            for (const auto& segment : file.segments())
                isCode
                    |= segment.isExecutable && address >= segment.address && address - segment.address < segment.size;
            if (!isCode)
                throw LoadError("one of its start functions is no code of its own");
            m_initialisers.push_back(reinterpret_cast<void (*)()>(pointer));
        }
    }
}

void MachOImage::protect(const MachOFile& file)
{
    for (const auto& segment : file.segments()) {
        const int access
            = PROT_READ | (segment.staysWritable ? PROT_WRITE : 0) | (segment.isExecutable ? PROT_EXEC : 0);
        if (segment.size > 0 && mprotect(m_memory + segment.address, segment.size, access) != 0)
            throw LoadError(std::string("its memory cannot be protected: ") + std::strerror(errno));
    }
}

}
