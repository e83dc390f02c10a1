// The systems that a simulated phone may have.
#pragma once

#include <array>
#include <string_view>

namespace Simulator {

/// What is a guess on the later two says `Phone/private.txt`.
inline constexpr std::array<std::string_view, 4> systemVersions{"13.4", "14.0", "15.0", "16.0"};
inline constexpr std::string_view usualSystem = systemVersions[1];

}
