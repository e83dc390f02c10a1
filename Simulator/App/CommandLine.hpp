// The command line of `lyr`.
#pragma once

#include "Simulator/Control/Shell.hpp"

#include <memory>

namespace Simulator::App {

struct ShellOptions {
    std::string extension; // a host path; empty for the built one
    bool isVerbose = false; // the extension's log goes to standard error
};

/// The simulated phone that a shell process runs, and the methods it has.
struct PhoneKind {
    std::unique_ptr<Control::Shell> (*make)(const ShellOptions&);
    void (*checkExtension)(const std::string& extension); // throws to say why it cannot be loaded
    const std::vector<Control::Method>& methods;
};

/// Answers the exit status: 0, 1 for a failure, 2 for bad usage.
int run(int argumentCount, char** arguments, const PhoneKind&);

}
