#include "Benchmarks/OwnProcess.hpp"

#include <cstdio>
#include <filesystem>

namespace Benchmarks {

std::string outputOfOwnProcess(const char* option, const std::string& root)
{
    std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::string command = "'" + program + "' " + option + " '" + root + "' 2>/dev/null";
    std::string text;
    if (FILE* output = popen(command.c_str(), "r")) {
        char piece[256];
        while (std::fgets(piece, sizeof piece, output))
            text += piece;
        pclose(output);
    }
    return text;
}

}
