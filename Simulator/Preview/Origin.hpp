// Which requests come from the preview's own page. A page of another site that has its name point to this machine sends
// another host, and one that opens a connection from where it is sends another origin.
#pragma once

#include <string>
#include <string_view>

namespace Simulator::Preview {

/// "127.0.0.1:8080", "localhost:8080" or "[::1]:8080"; the port may be left out where it is 80.
bool isOwnHost(std::string_view host, unsigned short port);
/// "http://" and an own host. Programs that are no browsers send none, which is well.
bool isOwnOrigin(std::string_view origin, unsigned short port);

}
