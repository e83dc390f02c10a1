#include "Simulator/Loader/ExtensionLoader.hpp"

#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loader/HookRecord.hpp"

#include <dlfcn.h>

#include <cstdio>

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
    auto filter = NS::Dictionary::dictionaryWithContentsOfFile(NS::String::fromUTF8(filterPath));
    auto bundles = filter.objectForKey<NS::Dictionary>("Filter"_ns).objectForKey<NS::Array>("Bundles"_ns);
    for (unsigned long i = 0; i < bundles.count(); ++i)
        if (bundles.at<NS::String>(i).utf8() == "com.apple.springboard")
            return true;
    return false;
}

int ExtensionLoader::loadAll()
{
    ObjC::AutoreleasePool pool;
    int loaded = 0;
    for (const std::string& name : PhoneFiles::shared().list(folder).value) {
        if (!name.ends_with(filterSuffix) || !isForShell(folder + name))
            continue;
        loaded += load(folder + name.substr(0, name.size() - filterSuffix.size()) + ".so");
    }
    return loaded;
}

bool ExtensionLoader::load(const std::string& libraryPath)
{
    HookRecording recording;
    void* library = dlopen(PhoneFiles::shared().hostPath(libraryPath).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::fprintf(stderr, "lyr: cannot load %s: %s\n", libraryPath.c_str(), dlerror());
        return false;
    }
    libraries_.push_back(library);
    return true;
}

void* ExtensionLoader::variable(const std::string& name) const
{
    std::string symbol = "_ZN3LYR" + std::to_string(name.size()) + name + "E";
    for (void* library : libraries_)
        if (void* address = dlsym(library, symbol.c_str()))
            return address;
    return nullptr;
}

}
