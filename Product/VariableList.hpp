// The process-wide variables of the extension, as an inspector finds them.
#pragma once

namespace Product {

/// One variable: its name, the type in the notation of the Objective-C runtime ("@", "B", "d", "Q"), and where it is.
struct VariableRow {
    const char* name;
    const char* type;
    void* address;
};

/// All of them. The extension exports the list as `LYR::variables`.
struct VariableList {
    const VariableRow* first;
    const VariableRow* last;

    const VariableRow* begin() const { return first; }
    const VariableRow* end() const { return last; }
};

}
