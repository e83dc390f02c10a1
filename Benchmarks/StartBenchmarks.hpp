// The start-up of the extension, which is measured once in a process: each measurement is a process of its own.
#pragma once

namespace Benchmarks {

inline constexpr const char* measureStartOption = "--measure-start";

/// Starts a phone on the root folder, loads the extension into it and prints how long that took, and how long the bare
/// reading of the font names takes. The extension is a library file; an empty path stands for this build's own. Answers
/// the program's exit status.
int measureStart(const char* root, const char* extension);

}
