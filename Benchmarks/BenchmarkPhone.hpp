// A phone in this process, with the extension loaded into it, as a shell process runs it.
#pragma once

#include "Simulator/SpringBoard/Shell.hpp"

#include <filesystem>
#include <vector>

namespace Benchmarks {

/// The phone, lit and settled on its lock screen, in the evening of 2020-11-15 on a screen of 1170 by 2532 pixels.
/// It is started when it is first asked for and runs until the program ends.
Simulator::Shell& phone();

/// Moves the phone's clock ahead and runs what falls due.
void advance(double seconds);

/// A full refresh now, and all that is in it.
void refreshFully();
/// Each refresh writes log lines, which must not pile up.
void forgetLog();

/// As long as it lives, the wallpaper cannot be read.
class WithoutWallpaper {
public:
    WithoutWallpaper();
    ~WithoutWallpaper();
    WithoutWallpaper(const WithoutWallpaper&) = delete;
    WithoutWallpaper& operator=(const WithoutWallpaper&) = delete;
};

/// The host's paths of the five fonts that the extension brings with it.
std::vector<std::filesystem::path> builtInFonts();

}
