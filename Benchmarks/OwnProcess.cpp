// Starts this program again, and reads what it prints.
#include "Benchmarks/OwnProcess.hpp"

#include <cstdio>
#include <filesystem>

namespace Benchmarks {

std::string outputOfOwnProcess(const std::vector<std::string>& arguments)
{
    std::string command = "'" + std::filesystem::read_symlink("/proc/self/exe").string() + "'";
    for (const std::string& argument : arguments)
        command += " '" + argument + "'";
    std::string text;
    if (FILE* output = popen((command + " 2>/dev/null").c_str(), "r")) {
        char piece[256];
        while (std::fgets(piece, sizeof piece, output))
            text += piece;
        pclose(output);
    }
    return text;
}

}
