// The libraries beside the extension that it takes settings, colours and weather from.
#pragma once

namespace LYR {

/// Brings their classes into the process: a package that is installed is not loaded by that. A library that is missing
/// costs what it is for, and nothing else.
void openCompanions();

}
