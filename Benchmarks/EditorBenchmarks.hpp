// The editor's wheel of fonts on a phone with many of them; they are installed in a process of their own.
#pragma once

namespace Benchmarks {

inline constexpr const char* measureFontRowsOption = "--measure-font-rows";

/// Starts a phone on the root folder, and prints how many rows the wheel has and how long it takes to say so: all
/// fonts are gathered and sorted anew. Answers the program's exit status.
int measureFontRows(const char* root);

}
