// All interceptions and added methods.
#pragma once

#include "Platform/ObjC/Hook.hpp"

namespace LYR {

/// The tables that were installed, in their order. Exported for whoever inspects the library.
struct HookTables {
    static constexpr unsigned long most = 8;
    unsigned long count;
    ObjC::HookTable tables[most];
};
extern HookTables hookTables;

/// Installs those that the settings ask for. They are read once, so a change waits for the next start of the shell.
void installHooks();

}
