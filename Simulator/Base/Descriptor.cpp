// Opening by the kernel's own check that a path stays below a folder.
#include "Simulator/Base/Descriptor.hpp"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>

namespace Simulator {

Descriptor openBelow(const Descriptor& folder, const char* relativePath, int flags)
{
    open_how how{};
    how.flags = static_cast<unsigned>(flags | O_CLOEXEC);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    return Descriptor(static_cast<int>(::syscall(SYS_openat2, folder.number(), relativePath, &how, sizeof how)));
}

}
