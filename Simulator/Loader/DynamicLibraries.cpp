// dlopen as the phone's processes know it: phone paths lie under the phone's root, and each request is recorded.
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"

#include <dlfcn.h>

extern "C" __attribute__((visibility("default"))) void* dlopen(const char* path, int mode) noexcept
{
    using Open = void* (*)(const char*, int);
    static auto hostOpen = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "dlopen"));
    auto& files = Simulator::PhoneFiles::shared();
    if (!path || files.root().empty() || !files.isPhonePath(path))
        return hostOpen(path, mode);
    Simulator::ActivityLog::shared().record("dlopen", {{"path", path}});
    return hostOpen(files.hostPath(path).c_str(), mode);
}
