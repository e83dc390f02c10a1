// dlopen as the phone's processes know it: phone paths lie under the phone's root, a companion library brings its
// classes, and each request is recorded.
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Loader/LackingParts.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <string_view>

namespace Simulator {

namespace {

/// The path without the prefix of phones whose system volume is sealed.
std::string_view withoutPrefix(std::string_view path)
{
    constexpr std::string_view prefix = "/var/jb";
    return path.starts_with(prefix) ? path.substr(prefix.size()) : path;
}

/// A library is there unless one of its classes is said to be lacking.
bool bringClasses(std::string_view library)
{
    const auto isThere = [](std::string_view name) { return !isLacking(name); };
    return std::ranges::all_of(classesOf(library), isThere) && bringClassesOf(library);
}

}

}

using namespace Simulator;

extern "C" __attribute__((visibility("default"))) void* dlopen(const char* path, int mode) noexcept
{
    using Open = void* (*)(const char*, int);
    static auto hostOpen = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "dlopen"));
    auto& files = PhoneFiles::shared();
    if (!path || files.root().empty())
        return hostOpen(path, mode);
    const bool isCompanion = !classesOf(withoutPrefix(path)).empty();
    if (!isCompanion && !files.isPhonePath(path))
        return hostOpen(path, mode);
    ActivityLog::shared().record("dlopen", {{"path", path}});
    if (isCompanion)
        return bringClasses(withoutPrefix(path)) ? hostOpen(nullptr, mode) : nullptr;
    return hostOpen(files.hostPath(path).c_str(), mode);
}
