// Most functions of the phone are the program's own or those of its libraries, found by name. The table has what the
// runtime or the C library here lacks or does otherwise.
#include "Simulator/Loader/PhoneSymbols.hpp"

#include "Platform/ObjC/Runtime.hpp"

#include <dlfcn.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unordered_map>

extern "C" {
void lyr_objc_msgSend();
void lyr_objc_msgSend_stret();
}

namespace Simulator {

namespace {

/// Flags of the phone's dlopen.
constexpr int lazily = 0x1, local = 0x4, global = 0x8, onlyIfLoaded = 0x10;

void* openLibrary(const char* path, int mode)
{
    int hostMode = mode & lazily ? RTLD_LAZY : RTLD_NOW;
    // Without either flag the phone's libraries are seen by all.
    hostMode |= mode & global || !(mode & local) ? RTLD_GLOBAL : RTLD_LOCAL;
    if (mode & onlyIfLoaded)
        hostMode |= RTLD_NOLOAD;
    return dlopen(path, hostMode);
}

/// The phone's RTLD_DEFAULT is -2.
void* findSymbol(void* library, const char* name)
{
    return library == reinterpret_cast<void*>(-2) ? dlsym(RTLD_DEFAULT, name) : dlsym(library, name);
}

void* pushPool()
{
    return ObjC::plainMessage<id>(reinterpret_cast<id>(objc_getClass("NSAutoreleasePool")), sel_registerName("new"));
}
void popPool(void* pool)
{
    ObjC::plainMessage<void>(static_cast<id>(pool), sel_registerName("drain"));
}

Class classOf(id object)
{
    return object_getClass(object);
}

template <std::size_t patternSize>
void fillWithPattern(void* bytes, const void* pattern, std::size_t size)
{
    auto* target = static_cast<char*>(bytes);
    for (; size > patternSize; size -= patternSize, target += patternSize)
        std::memcpy(target, pattern, patternSize);
    std::memcpy(target, pattern, size);
}

template <class Number>
struct SineAndCosine {
    Number sine, cosine;
};
template <class Number>
SineAndCosine<Number> sineAndCosine(Number angle)
{
    return {std::sin(angle), std::cos(angle)};
}

/// Everything is bound at once, so nothing asks for a function to be bound later.
[[noreturn]] void bindLate()
{
    std::fputs("lyr: the extension called a function that was never bound\n", stderr);
    std::abort();
}

template <class Function>
void* address(Function* function)
{
    return reinterpret_cast<void*>(function);
}

const std::unordered_map<std::string, void*>& ownSymbols()
{
    static const std::unordered_map<std::string, void*> symbols
    {
        {"_objc_msgSend", address(lyr_objc_msgSend)},
#if defined(__x86_64__)
            {"_objc_msgSend_stret", address(lyr_objc_msgSend_stret)},
#endif
            {"_objc_retain", address(ObjC::retain)}, {"_objc_release", address(ObjC::release)},
            {"_objc_autorelease", address(ObjC::autorelease)}, {"_objc_autoreleasePoolPush", address(pushPool)},
            {"_objc_autoreleasePoolPop", address(popPool)}, {"_object_getClass", address(classOf)},
            {"_dlopen", address(openLibrary)}, {"_dlsym", address(findSymbol)},
            {"_memset_pattern4", address(fillWithPattern<4>)}, {"_memset_pattern8", address(fillWithPattern<8>)},
            {"_memset_pattern16", address(fillWithPattern<16>)}, {"___sincos_stret", address(sineAndCosine<double>)},
            {"___sincosf_stret", address(sineAndCosine<float>)}, {"dyld_stub_binder", address(bindLate)},
    };
    return symbols;
}

}

void* phoneSymbol(const std::string& name)
{
    const auto own = ownSymbols().find(name);
    if (own != ownSymbols().end())
        return own->second;
    // The phone's linker puts a line before the names of C.
    return name.starts_with('_') ? dlsym(RTLD_DEFAULT, name.c_str() + 1) : nullptr;
}

}
