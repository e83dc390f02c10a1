// All interceptions and added methods.
#pragma once

namespace LYR {

/// Installs those that the settings ask for. They are read once, so a change waits for the next start of the shell.
void installHooks();

}
