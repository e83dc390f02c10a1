// The two functions by which methods are intercepted and added. They stand before the runtime's own.
#include "Simulator/Loader/HookRecord.hpp"

#include "Platform/Substrate/MSHookMessageEx.hpp"
#include "Simulator/Loader/LackingParts.hpp"
#include "Simulator/Runtime/MethodTable.hpp"

#include <dlfcn.h>

#include <utility>

namespace Simulator {

static std::vector<HookRecord> records;
static bool isRecording = false;

const std::vector<HookRecord>& hookRecords()
{
    return records;
}

HookRecording::HookRecording()
{
    isRecording = true;
}
HookRecording::~HookRecording()
{
    isRecording = false;
}

static void record(HookRecord::Kind kind, Class type, SEL selector, const char* types)
{
    records.push_back({kind, type ? class_getName(type) : "", sel_getName(selector), types ? types : ""});
}

/// Whether a class is finished; one that is still being built gets methods of its own, not added ones.
static bool isRegistered(Class type)
{
    return objc_lookUpClass(class_getName(type)) == type;
}

using AddMethod = BOOL (*)(Class, SEL, IMP, const char*);

static AddMethod runtimeAddMethod()
{
    static auto function = reinterpret_cast<AddMethod>(dlsym(RTLD_NEXT, "class_addMethod"));
    return function;
}

}

using namespace Simulator;

extern "C" {

BOOL class_addMethod(Class type, SEL selector, IMP implementation, const char* types)
{
    if (isRecording && (!type || isRegistered(type)))
        record(HookRecord::Kind::added, type, selector, types);
    return type && runtimeAddMethod()(type, selector, implementation, types);
}

/// A class without an implementation of its own gets one, and what it inherits is the stock one.
void MSHookMessageEx(Class type, SEL selector, IMP replacement, IMP* stock)
{
    Method method = type && !isLacking(type, selector) ? class_getInstanceMethod(type, selector) : nullptr;
    record(HookRecord::Kind::hook, type, selector, method ? method_getTypeEncoding(method) : nullptr);
    if (!method)
        return;
    if (stock)
        *stock = method_getImplementation(method);
    const bool wasRecording = std::exchange(isRecording, false);
    setMethod(type, selector, replacement, method_getTypeEncoding(method));
    isRecording = wasRecording;
}
}
