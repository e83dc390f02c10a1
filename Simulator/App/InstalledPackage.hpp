// Installs a package as the phone's package manager does, with the host's tools.
#pragma once

#include <string>

namespace Simulator::App {

/// Unpacks the package, a path of the host, into the phone's root, and runs its `postinst` with DPKG_ROOT set to that.
/// What the package holds has the package's owners; what its script makes is root's, unless the script gives it away.
/// Throws a std::runtime_error that names the package.
void installPackage(const std::string& package);

}
