// The Objective-C runtime's C interface. This is the one file that knows which runtime is underneath:
// the phone's, or GCC's libobjc with GNUstep's NSObject.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__APPLE__)

using id = struct objc_object*;
using Class = struct objc_class*;
using SEL = struct objc_selector*;
using Ivar = struct objc_ivar*;
using Method = struct objc_method*;
using IMP = void (*)();

extern "C" {
void objc_msgSend();
void objc_msgSend_stret();
void objc_msgSendSuper();
void objc_msgSendSuper_stret();
id objc_retain(id);
void objc_release(id);
id objc_autorelease(id);
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void*);
Class objc_getClass(const char* name);
Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes);
void objc_registerClassPair(Class);
Class object_getClass(id);
Class class_getSuperclass(Class);
bool class_addMethod(Class, SEL, IMP, const char* types);
bool class_addIvar(Class, const char* name, std::size_t size, std::uint8_t alignment, const char* types);
Ivar class_getInstanceVariable(Class, const char* name);
std::ptrdiff_t ivar_getOffset(Ivar);
const char* ivar_getTypeEncoding(Ivar);
Method class_getInstanceMethod(Class, SEL);
const char* method_getTypeEncoding(Method);
SEL sel_registerName(const char* name);
}

/// A section of a library, and the linker's names for where it starts and ends.
#define OBJC_SECTION(name) "__DATA," #name
#define OBJC_SECTION_START(name) "section$start$__DATA$" #name
#define OBJC_SECTION_END(name) "section$end$__DATA$" #name

#else

#include <objc/message.h>
#include <objc/runtime.h>

#define OBJC_SECTION(name) #name
#define OBJC_SECTION_START(name) "__start_" #name
#define OBJC_SECTION_END(name) "__stop_" #name

#endif

namespace ObjC {

#if defined(__APPLE__)

inline id retain(id object)
{
    return objc_retain(object);
}
inline void release(id object)
{
    objc_release(object);
}
inline id autorelease(id object)
{
    return objc_autorelease(object);
}
inline Class metaclassOf(Class type)
{
    return object_getClass(reinterpret_cast<id>(type));
}

/// Objects autoreleased while this stands are released when it goes.
class AutoreleasePool {
public:
    AutoreleasePool()
        : m_pool(objc_autoreleasePoolPush())
    {
    }
    ~AutoreleasePool() { objc_autoreleasePoolPop(m_pool); }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

private:
    void* m_pool;
};

#else

/// One message without arguments by a selector that is looked up once.
template <class Result>
inline Result plainMessage(id receiver, SEL selector)
{
    return reinterpret_cast<Result (*)(id, SEL)>(objc_msg_lookup(receiver, selector))(receiver, selector);
}

inline id retain(id object)
{
    static SEL selector = sel_registerName("retain");
    return object ? plainMessage<id>(object, selector) : nullptr;
}

inline void release(id object)
{
    static SEL selector = sel_registerName("release");
    if (object)
        plainMessage<void>(object, selector);
}

inline id autorelease(id object)
{
    static SEL selector = sel_registerName("autorelease");
    return object ? plainMessage<id>(object, selector) : nullptr;
}

inline Class metaclassOf(Class type)
{
    return objc_getMetaClass(class_getName(type));
}

/// Objects autoreleased while this stands are released when it goes.
class AutoreleasePool {
public:
    AutoreleasePool()
        : m_pool(plainMessage<id>(reinterpret_cast<id>(objc_getClass("NSAutoreleasePool")), sel_registerName("new")))
    {
    }
    ~AutoreleasePool() { plainMessage<void>(m_pool, sel_registerName("drain")); }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

private:
    id m_pool;
};

#endif

}
