// Which libraries are for the shell, and how each kind of library is brought into the process.
#include "Simulator/Loader/ExtensionLoader.hpp"

#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Base/HostFile.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loader/HookRecord.hpp"
#include "Simulator/Loader/MachOImage.hpp"
#include "Simulator/Loader/PhoneSymbols.hpp"
#include "Simulator/Runtime/ExtensionCounts.hpp"

#include <dlfcn.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace Simulator {

static constexpr std::string_view filterSuffix = ".plist";

ExtensionLoader& ExtensionLoader::shared()
{
    static ExtensionLoader loader;
    return loader;
}

/// Whether the filter beside a library names the shell among the programs it is for.
static bool isForShell(const std::string& filterPath)
{
    const OwnWork own;
    auto filter = NS::Dictionary::dictionaryWithContentsOfFile(NS::String::fromUTF8(filterPath));
    auto bundles = filter.objectForKey<NS::Dictionary>("Filter"_ns).objectForKey<NS::Array>("Bundles"_ns);
    for (unsigned long i = 0; i < bundles.count(); ++i)
        if (bundles.at<NS::String>(i).utf8() == "com.apple.springboard")
            return true;
    return false;
}

static std::string bytesOf(const std::string& hostPath)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(hostPath, error))
        throw LoadError(error ? "it cannot be read: " + error.message() : "it is not a file");
    auto bytes = readHostFile(hostPath).value;
    if (bytes.empty())
        throw LoadError("it cannot be read, or is empty");
    return bytes;
}

static bool isLinuxLibrary(std::string_view bytes)
{
    return bytes.starts_with("\177ELF");
}

static std::function<void*(const std::string&)> load(const std::string& hostPath)
{
    HookRecording recording;
    auto bytes = bytesOf(hostPath);
    if (isLinuxLibrary(bytes)) {
        void* library = dlopen(hostPath.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!library)
            throw LoadError(dlerror());
        return [library](const std::string& name) { return dlsym(library, name.c_str()); };
    }
    auto image = std::make_shared<MachOImage>(MachOFile(std::move(bytes)), phoneSymbol);
    image->start();
    return [image](const std::string& name) { return image->symbol("_" + name); };
}

void ExtensionLoader::reportOnStandardError(const std::string& libraryPath, const LoadError& error)
{
    std::fprintf(stderr, "lyr: cannot load %s: %s\n", libraryPath.c_str(), error.what());
}

int ExtensionLoader::loadAll(const Report& report)
{
    ObjC::AutoreleasePool pool;
    // On some phones the prefix is a link to the system's own place.
    const auto& files = PhoneFiles::shared();
    std::error_code error;
    const bool isOnePlace = std::filesystem::equivalent(files.hostPath(folder), files.hostPath(sealedFolder), error);
    return loadFolder(folder, report) + (isOnePlace ? 0 : loadFolder(sealedFolder, report));
}

int ExtensionLoader::loadFolder(const std::string& folder, const Report& report)
{
    int loaded = 0;
    auto& files = PhoneFiles::shared();
    for (const std::string& name : files.list(folder).value) {
        if (!name.ends_with(filterSuffix) || !isForShell(folder + name))
            continue;
        std::string library = folder + name.substr(0, name.size() - filterSuffix.size());
        library += files.exists(library + ".dylib") ? ".dylib" : ".so";
        try {
            m_libraries.push_back(load(files.hostPath(library)));
            ++loaded;
        } catch (const LoadError& error) {
            report(library, error);
        }
    }
    return loaded;
}

const Product::VariableRow* ExtensionLoader::variable(std::string_view name) const
{
    for (const auto& find : m_libraries) {
        const auto* list = static_cast<const Product::VariableList*>(find("_ZN3LYR9variablesE"));
        for (const Product::VariableRow& row : list ? *list : Product::VariableList{})
            if (row.name == name)
                return &row;
    }
    return nullptr;
}

std::vector<ObjC::HookTable> ExtensionLoader::hookTables() const
{
    /// As the extension has them: how many there are, and the tables.
    struct Exported {
        unsigned long count;
        ObjC::HookTable first;
    };
    std::vector<ObjC::HookTable> tables;
    for (const auto& find : m_libraries) {
        if (const auto* exported = static_cast<const Exported*>(find("_ZN3LYR10hookTablesE")))
            tables.insert(tables.end(), &exported->first, &exported->first + exported->count);
    }
    return tables;
}

void ExtensionLoader::check(const std::string& hostPath)
{
    auto bytes = bytesOf(hostPath);
    if (isLinuxLibrary(bytes))
        return;
    if (!MachOFile::isOne(bytes))
        throw LoadError("it is neither a library of this machine (ELF) nor one of the phone's kind (Mach-O)");
    MachOImage(MachOFile(std::move(bytes)), phoneSymbol);
}

}
