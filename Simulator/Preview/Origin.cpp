// Compares the names of hosts as a browser writes them.
#include "Simulator/Preview/Origin.hpp"

#include <algorithm>
#include <cctype>

namespace Simulator::Preview {

bool isOwnHost(std::string_view host, unsigned short port)
{
    std::string name(host);
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    for (const std::string own : {"127.0.0.1", "localhost", "[::1]"}) {
        if (name == own + ":" + std::to_string(port) || (port == 80 && name == own))
            return true;
    }
    return false;
}

bool isOwnOrigin(std::string_view origin, unsigned short port)
{
    constexpr std::string_view scheme = "http://";
    return origin.empty() || (origin.starts_with(scheme) && isOwnHost(origin.substr(scheme.size()), port));
}

}
