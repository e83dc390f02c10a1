// What the extension did to the shell's method tables, in the order in which it did it.
#pragma once

#include "Platform/ObjC/Runtime.hpp"

#include <string>
#include <vector>

namespace Simulator {

struct HookRecord {
    enum class Kind { hook, added };

    Kind kind;
    /// Empty where this phone has no class of the name that was asked for.
    std::string className;
    std::string selectorName;
    std::string types;
    bool resolved() const { return !className.empty(); }
};

/// All records since the shell started.
const std::vector<HookRecord>& hookRecords();

/// While one of these stands, methods added to finished classes are recorded as the extension's.
class HookRecording {
public:
    HookRecording();
    ~HookRecording();
    HookRecording(const HookRecording&) = delete;
    HookRecording& operator=(const HookRecording&) = delete;
};

}
