// The start-up of the extension, which is measured once in a process: each measurement is a process of its own.
#pragma once

namespace Benchmarks {

inline constexpr const char* measureStartOption = "--measure-start";

/// Starts a phone on the root folder, loads the extension into it and prints how long that took, and how long the bare
/// reading of the font names takes. Answers the program's exit status.
int measureStart(const char* root);

}
