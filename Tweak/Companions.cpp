// Where the libraries lie.
#include "Tweak/Companions.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"

#include <dlfcn.h>

namespace LYR {

namespace {

constexpr const char* libraries[] = {
    LYR_PREFIX "/Library/Frameworks/Cephei.framework/Cephei",
    LYR_PREFIX "/usr/lib/libsparkcolourpicker.dylib",
    LYR_PREFIX "/usr/lib/libweatherlyr.dylib",
};

}

void openCompanions()
{
    for (const char* library : libraries)
        dlopen(library, RTLD_NOW);
}

}
